// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/panel.h"

#include <string>
#include <string_view>

class FrameWidget;
class QPoint;
class QScreen;

/// A window: areas from top to bottom (panels, text panes, the terminal pane), and a line with a left and a
/// right footer. The first frame made is the main window; the others belong to it and close with Escape.
/// Return in a control that does not act on it presses the default button; where there is none it goes to the
/// next control.
class Frame : public Container {
  public:
    explicit Frame(std::string_view label);
    ~Frame() override;
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    /// The frame made first: the application's main window.
    [[nodiscard]] static Frame& base();

    /// The text of the title bar, and of the icon.
    void set_label(std::string_view label);
    [[nodiscard]] std::string label() const;

    void set_left_footer(std::string_view text);
    void set_right_footer(std::string_view text);
    /// What its tool tip says on it.
    void explain_right_footer(std::string_view text);
    [[nodiscard]] std::string left_footer() const;
    [[nodiscard]] std::string right_footer() const;

    /// Shows the window and brings it to the front with the keyboard focus.
    void show();
    void hide();
    [[nodiscard]] bool shown() const;
    /// The next `show` shows the icon only.
    void start_iconified();
    /// Size in pixels, without the window manager's frame. A window that is shown stays on the screen, and
    /// gets no larger than that.
    void resize(int width, int height);
    void set_width(int width);
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;
    /// Shows a pop-up. One that is not shown yet is placed at an offset in pixels from the main window's
    /// origin, or where the user has put it before; moved back where that would be outside the screen, and
    /// aside where it would hide another. One that is larger than the screen scrolls.
    void open(int right = 740, int down = 100);
    /// Shows a pop-up at such an offset and in a size of its own, wherever it was; no larger than the screen.
    void open_sized(int right, int down, int width, int height);
    /// Shows the main window as its icon. Pop-ups that are up stay up.
    void iconify();
    /// Called instead of closing the window when its user asks for that.
    void on_close(void (*notify)());

    void add(std::string_view label, QWidget* area, Place place) override;
    [[nodiscard]] QWidget* widget() const override;
    [[nodiscard]] bool holds(const QWidget* control) const;

  private:
    friend class BusyState;
    void place_beside_base(int right, int down);
    void place_inside(const QScreen& screen, QPoint wanted);

    FrameWidget* widget_;
    int busy_ = 0;
};

/// While it lives, the frame is busy: a waiting pointer shows that input has to wait. Nests.
class BusyState {
  public:
    explicit BusyState(Frame& frame);
    ~BusyState();
    BusyState(const BusyState&) = delete;
    BusyState& operator=(const BusyState&) = delete;

  private:
    Frame& frame_;
};

/// A pop-up with one panel of controls.
class CommandFrame : public Frame {
  public:
    explicit CommandFrame(std::string_view label, int fields_per_line = 1)
        : Frame(label), panel(*this, fields_per_line) {}

    Panel panel;
};
