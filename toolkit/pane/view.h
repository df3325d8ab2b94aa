// SPDX-License-Identifier: MIT
#pragma once

#include "toolkit/pane/blinking.h"
#include "toolkit/pane/font.h"
#include "toolkit/pane/frame_pacer.h"
#include "toolkit/pane/key_event.h"
#include "toolkit/pane/painter.h"
#include "toolkit/pane/pointer.h"
#include "toolkit/pane/selection.h"
#include "toolkit/pane/session.h"
#include "toolkit/pane/viewport.h"
#include "toolkit/selection.h"

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

/// Shows a session's terminal: paints what changed and turns keys and the mouse into what the program reads.
/// The scroll bar belongs to the pane around it.
class TerminalView final : public QWidget {
  public:
    TerminalView(TerminalSession& session, QScrollBar& scroll_bar, QWidget* parent);
    ~TerminalView() override;

    /// The font that `zoom` comes back to.
    void set_terminal_font(const QFont& font);
    [[nodiscard]] const QFont& terminal_font() const { return font_->font(); }
    /// Makes the font larger by so many points (pixels where it is given in those), smaller when negative; 0
    /// gives it its usual size.
    void zoom(int steps);
    void set_font_family(const QString& family);
    void set_interposer(std::function<bool(KeyEvent&)> function) { interposer_ = std::move(function); }
    /// Called for the context menu, with a global position; and for the find key.
    void set_menu_callback(std::function<void(QPoint)> callback) { show_menu_ = std::move(callback); }
    void show_menu_at_cursor();
    /// The context menu, which the pane fills. Qt shows assistive tools no menu that nobody owns.
    [[nodiscard]] QMenu& menu() const { return *menu_; }
    void set_find_callback(std::function<void()> callback) { show_find_ = std::move(callback); }

    /// The terminal has changed: it is painted with the next frame.
    void content_changed() { frames_.request(); }
    [[nodiscard]] bool awaits_frame() const { return frames_.pending(); }
    /// Flashes shortly, in the margin round the text.
    void flash() { blinking_.flash(); }

    [[nodiscard]] const terminal::Terminal& terminal() const { return session_.terminal(); }
    [[nodiscard]] QSize sizeHint() const override;

    // Scrolling.
    void scroll_to_bottom();
    /// Brings a row into view, in the middle if it is not yet to be seen.
    void show_row(terminal::RowId row);

    // Selection and clipboard.
    [[nodiscard]] const TerminalSelection& selection() const { return selection_; }
    void select(terminal::Range range);
    void clear_selection();
    void copy();
    void paste(SelectionName source);

    /// The find bar's match, shown in a colour of its own until its text changes; an empty range for none.
    void set_match(terminal::Range match);
    [[nodiscard]] terminal::Range match() const { return match_.range(); }

    // Geometry, in the widget's coordinates.
    [[nodiscard]] terminal::Position position_at(QPointF point) const { return viewport_.position_at(point); }
    /// The area of a cell; also of one scrolled out of view.
    [[nodiscard]] QRect cell_area(terminal::Position position) const { return viewport_.cell_area(position); }

    /// The address of the link at a point; empty where none is.
    [[nodiscard]] std::string link_at(QPointF point) const { return mouse_.link_at(point); }

    /// Where a row shows the plain web address under the pointer.
    [[nodiscard]] Columns address_in(terminal::RowId row) const { return mouse_.hovered_address_in(row); }

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
    /// What was painted for a row of the view.
    struct Picture {
        terminal::RowId row = 0;
        std::uint64_t stamp = 0;
        RowMarks marks;
        bool operator==(const Picture&) const = default;
    };

    void apply_font(const QFont& font);

    // Frames.
    void frame();
    void refresh();
    void refresh_all();
    void repaint_all_if_colours_changed();
    void shift_pictures(terminal::RowId top);
    [[nodiscard]] Picture picture_of(terminal::RowId row) const;
    [[nodiscard]] CursorLook cursor_look() const;
    [[nodiscard]] ScreenLook look() const { return {reverse_video_, blinking_.text_hidden()}; }
    [[nodiscard]] std::vector<std::size_t> lines_in_turn() const;
    void paint_flash(QPainter& painter) const;
    [[nodiscard]] QRegion flash_area() const;
    void blink_text();
    void fit_to_size();
    void settle();
    void update_scroll_bar();
    void scroll_to(terminal::RowId top);

    // Keys.
    bool interpose(KeyEvent& event);
    bool handle_own_key(const QKeyEvent& event);
    bool handle_scroll_key(const QKeyEvent& event);
    bool handle_zoom_key(const QKeyEvent& event);
    void type_key(const KeyEvent& event);
    void focus_changed(bool has_focus);

    void publish_selection();
    void withdraw_selection();
    void primary_selection_changed();
    void type_paste(const std::string& text);
    void show_tool_tip(const QHelpEvent& event);

    TerminalSession& session_;
    QScrollBar& scroll_bar_;
    QFont usual_font_;
    std::unique_ptr<TerminalFont> font_;
    std::unique_ptr<TerminalReader> reader_;
    Viewport viewport_;
    TerminalSelection selection_;
    Pointer mouse_;
    Blinking blinking_;
    FramePacer frames_;

    TerminalSelection match_;           ///< the find bar's
    QTimer settle_timer_;               ///< runs while the window follows the terminal's size
    QSize settled_size_;                ///< ours when it has
    std::optional<QRect> unmaximized_;  ///< the window before it was maximised one way only
    bool laid_out_ = false;  ///< has a size of its own; till then the terminal keeps the standard one

    std::function<bool(KeyEvent&)> interposer_;
    QMenu* menu_;
    std::function<void(QPoint)> show_menu_;
    std::function<void()> show_find_;
    QString preedit_;
    QRect cursor_area_;        ///< as the input method was told
    bool publishing_ = false;  ///< the change of the primary selection is our own doing
    bool published_ = false;   ///< the primary selection is what was marked here

    std::vector<Picture> pictures_;
    std::size_t next_line_ = 0;           ///< to be painted after the cursor's
    std::vector<terminal::Rgb> colours_;  ///< painted with
    bool reverse_video_ = false;          ///< painted so
};
