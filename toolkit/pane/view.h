// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/input.h"
#include "toolkit/pane/font.h"
#include "toolkit/pane/key_event.h"
#include "toolkit/pane/painter.h"
#include "toolkit/pane/selection.h"
#include "toolkit/pane/session.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QHelpEvent;
class QMenu;
class QScrollBar;
class TerminalReader;

/// Shows a session's terminal: paints what changed, at most once a display frame, and turns keys and the
/// mouse into what the program reads. The scroll bar belongs to the pane around it.
class TerminalView final : public QWidget {
  public:
    TerminalView(TerminalSession& session, QScrollBar& scroll_bar, QWidget* parent);
    ~TerminalView() override;

    void set_terminal_font(const QFont& font);
    void set_interposer(std::function<bool(KeyEvent&)> function) { interposer_ = std::move(function); }
    /// Called for the context menu, with a global position; and for the find key.
    void set_menu_callback(std::function<void(QPoint)> callback) { show_menu_ = std::move(callback); }
    void show_menu_at_cursor();
    /// The context menu, which the pane fills. Qt shows assistive tools no menu that nobody owns.
    [[nodiscard]] QMenu& menu() const { return *menu_; }
    void set_find_callback(std::function<void()> callback) { show_find_ = std::move(callback); }

    /// The terminal has changed: it is painted with the next frame.
    void content_changed();
    /// Flashes shortly, in the margin round the text.
    void flash();

    [[nodiscard]] const terminal::Terminal& terminal() const { return session_.terminal(); }
    [[nodiscard]] QSize sizeHint() const override;

    // Scrolling.
    void scroll_to_bottom();
    void scroll_lines(int lines);
    /// Brings a row into view, in the middle if it is not yet to be seen.
    void show_row(terminal::RowId row);

    // Selection and clipboard.
    [[nodiscard]] const TerminalSelection& selection() const { return selection_; }
    void select(terminal::Range range);
    void clear_selection();
    void copy();
    enum class PasteSource : std::uint8_t { clipboard, primary };
    void paste(PasteSource source);

    /// The find bar's match, shown in a colour of its own; an empty range for none.
    void set_match(terminal::Range match);
    [[nodiscard]] terminal::Range match() const { return match_; }

    // Geometry, in the widget's coordinates.
    [[nodiscard]] terminal::Position position_at(QPointF point) const;
    /// The area of a cell; also of one scrolled out of view.
    [[nodiscard]] QRect cell_area(terminal::Position position) const;

    /// The address of the link at a point; empty where none is.
    [[nodiscard]] std::string link_at(QPointF point) const;

    // The window, for the program in the terminal.
    [[nodiscard]] terminal::WindowGeometry window_geometry() const;
    void perform(const terminal::WindowRequest& request);
    /// The program has given the terminal another size.
    void follow_size();

    /// The text as assistive tools read it.
    [[nodiscard]] TerminalReader& reader() { return *reader_; }

  protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    static constexpr int margin = 4;  ///< pixels round the text

    /// What was painted for a row of the view.
    struct Picture {
        terminal::RowId row = 0;
        std::uint64_t stamp = 0;
        RowMarks marks;
        bool operator==(const Picture&) const = default;
    };
    /// Where the mouse is in a drag or a report to the program.
    struct MouseState {
        bool selecting = false;
        terminal::MouseButton held = terminal::MouseButton::none;  ///< reported as pressed
        terminal::Position last_report{-1, -1};
        std::string link;  ///< the button was pressed on, to open it
        QPointF drag_point;
        QPointF double_click_point;
        QElapsedTimer since_double_click;
        int wheel_remainder = 0;
    };

    // Frames.
    void frame();
    void refresh();
    void refresh_all();
    void repaint_all_if_colours_changed();
    void shift_pictures(terminal::RowId top);
    [[nodiscard]] Picture picture_of(terminal::RowId row) const;
    [[nodiscard]] CursorLook cursor_look() const;
    [[nodiscard]] QRect row_area(int line) const;

    // Blinking and flashing.
    void follow_cursor();
    void restart_cursor_blinking();
    void blink_cursor();
    void await_blink(bool seen);
    void blink_text();
    [[nodiscard]] bool blinks(terminal::RowId row) const;
    [[nodiscard]] QRegion flash_area() const;

    // Geometry and scrolling.
    void fit_to_size();
    [[nodiscard]] terminal::Size room_for_text() const;
    void settle();
    [[nodiscard]] terminal::RowId top_row() const;
    void update_scroll_bar();
    void scroll_to(terminal::RowId top);

    // Keys.
    bool interpose(KeyEvent& event);
    bool handle_own_key(const QKeyEvent& event);
    bool handle_scroll_key(const QKeyEvent& event);
    void type_key(const KeyEvent& event);

    // Mouse.
    [[nodiscard]] bool program_has_mouse(Qt::KeyboardModifiers modifiers) const;
    bool report_mouse(terminal::MouseAction action, terminal::MouseButton button, QPointF point,
                      Qt::KeyboardModifiers modifiers);
    [[nodiscard]] terminal::Position boundary_at(QPointF point) const;
    void begin_selection(QPointF point, SelectionUnit unit, Qt::KeyboardModifiers modifiers);
    void extend_selection(QPointF point);
    void scroll_while_dragging();
    void publish_selection();
    void primary_selection_changed();
    void turn_wheel(int notches, QPointF point, Qt::KeyboardModifiers modifiers);

    // Links.
    [[nodiscard]] terminal::LinkId link_id_at(QPointF point) const;
    void follow_pointer();
    void move_pointer(std::optional<QPointF> point, Qt::KeyboardModifiers modifiers);
    [[nodiscard]] terminal::LinkId hovered_link_in(const terminal::Row& row) const;
    [[nodiscard]] bool press_link(QPointF point, Qt::KeyboardModifiers modifiers);
    void release_link(QPointF point);
    void show_tool_tip(const QHelpEvent& event);

    void type_paste(const std::string& text);

    TerminalSession& session_;
    QScrollBar& scroll_bar_;
    std::unique_ptr<TerminalFont> font_;
    std::unique_ptr<TerminalReader> reader_;
    TerminalSelection selection_;
    terminal::Range match_;
    QTimer settle_timer_;  ///< runs while the window follows the terminal's size
    QSize settled_size_;   ///< ours when it has
    std::function<bool(KeyEvent&)> interposer_;
    QMenu* menu_;
    std::function<void(QPoint)> show_menu_;
    std::function<void()> show_find_;

    std::vector<Picture> pictures_;
    ScreenLook look_;
    std::vector<terminal::Rgb> colours_;  ///< painted with
    QTimer frame_timer_;
    QElapsedTimer since_frame_;  ///< only such as painted something: a key typed must not put its echo off
    qint64 paint_milliseconds_ = 0;  ///< what the last frame took

    bool laid_out_ = false;  ///< has a size of its own; till then the terminal keeps the standard one
    bool follows_output_ = true;
    terminal::RowId view_top_ = 0;  ///< when not following

    QBasicTimer cursor_timer_;
    bool cursor_hidden_ = false;  ///< by blinking
    QElapsedTimer since_cursor_moved_;
    terminal::Position cursor_place_;  ///< as last seen, and whether it blinked
    bool cursor_blinks_ = false;
    QBasicTimer text_blink_timer_;
    QBasicTimer flash_timer_;
    QBasicTimer drag_timer_;
    MouseState mouse_;
    std::optional<QPointF> pointer_;  ///< while it is over the view
    Qt::KeyboardModifiers pointer_modifiers_;
    terminal::LinkId hovered_link_ = 0;
    bool publishing_ = false;  ///< the change of the primary selection is our own doing
    QString preedit_;
};
