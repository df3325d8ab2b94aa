// SPDX-License-Identifier: MIT
#include "toolkit/help_pane.h"

#include "toolkit/clear_button.h"
#include "toolkit/return_key.h"
#include "toolkit/text_conversion.h"
#include "toolkit/text_size.h"
#include "toolkit/theme.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>

namespace {

constexpr int picture_size = 24;  ///< pixels
constexpr int page_margin = 14;
const QColor match_colour(0xff, 0xe3, 0x8f);

/// Draws pictures as sharp as the screen allows: Qt would blow up what it has drawn at their nominal size.
class Browser final : public QTextBrowser {
  public:
    using QTextBrowser::QTextBrowser;

  protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type != QTextDocument::ImageResource) {
            return in_theme(QTextBrowser::loadResource(type, name).toByteArray());
        }
        if (!name.path().endsWith(QLatin1String(".svg"))) {
            return QTextBrowser::loadResource(type, name);
        }
        const QIcon picture = themed_icon(source().resolved(name).toLocalFile());
        return picture.pixmap(QSize(picture_size, picture_size), devicePixelRatioF());
    }
};

QPushButton* make_button(const QString& label, QWidget* parent) {
    auto* button = new QPushButton(label, parent);
    button->setAccessibleName(label);
    button->setAutoDefault(false);
    return button;
}

}  // namespace

class HelpPaneWidget final : public QWidget {
  public:
    HelpPaneWidget(const QString& accessible_name, QWidget* parent)
        : QWidget(parent),
          back_(make_button(QStringLiteral("Back"), this)),
          field_(new QLineEdit(this)),
          previous_(make_button(QStringLiteral("Previous"), this)),
          next_(make_button(QStringLiteral("Next"), this)),
          result_(new QLabel(this)),
          browser_(new Browser(this)) {
        field_->setAccessibleName(QStringLiteral("Find:"));
        field_->setPlaceholderText(QStringLiteral("Find in this text"));
        add_clear_button(*field_);
        next_->setDefault(true);
        browser_->setAccessibleName(accessible_name);
        browser_->document()->setDocumentMargin(page_margin);
        back_->setEnabled(false);
        lay_out();
        connect(back_, &QPushButton::clicked, browser_, &QTextBrowser::backward);
        connect(browser_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
        connect(browser_, &QTextBrowser::sourceChanged, this, [this] { mark_matches(); });
        connect(field_, &QLineEdit::textChanged, this, [this] { search_as_typed(); });
        connect(next_, &QPushButton::clicked, this, [this] { go({}); });
        connect(previous_, &QPushButton::clicked, this, [this] { go(QTextDocument::FindBackward); });
        auto* shortcut = new QShortcut(QKeySequence::Find, this);
        connect(shortcut, &QShortcut::activated, field_,
                [this] { field_->setFocus(Qt::ShortcutFocusReason); });
    }

    [[nodiscard]] QTextBrowser& browser() { return *browser_; }

  protected:
    /// The page is drawn in the colours that there were.
    void changeEvent(QEvent* event) override {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::PaletteChange && !browser_->source().isEmpty()) {
            browser_->reload();
        }
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (is_return(*event) && field_->hasFocus()) {
            go(event->modifiers().testFlag(Qt::ShiftModifier) ? QTextDocument::FindBackward
                                                              : QTextDocument::FindFlags());
            return;
        }
        QWidget::keyPressEvent(event);
    }

  private:
    void lay_out() {
        auto* bar = new QHBoxLayout;
        bar->setContentsMargins(10, 8, 10, 8);
        bar->setSpacing(6);
        bar->addWidget(back_);
        bar->addSpacing(12);
        auto* label = new QLabel(QStringLiteral("Find:"), this);
        label->setBuddy(field_);
        bar->addWidget(label);
        bar->addWidget(field_, 1);
        bar->addWidget(previous_);
        bar->addWidget(next_);
        bar->addWidget(result_);
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addLayout(bar);
        column->addWidget(browser_);
    }

    /// Colours every match and tells their number.
    void mark_matches() {
        QList<QTextEdit::ExtraSelection> matches;
        if (const QString needle = field_->text(); !needle.isEmpty()) {
            QTextCursor match(browser_->document());
            while (!(match = browser_->document()->find(needle, match)).isNull()) {
                QTextEdit::ExtraSelection selection;
                selection.cursor = match;
                selection.format.setBackground(match_colour);
                selection.format.setForeground(Qt::black);
                matches.append(selection);
            }
            result_->setText(matches.isEmpty()     ? QStringLiteral("Not found")
                             : matches.size() == 1 ? QStringLiteral("1 match")
                                                   : QStringLiteral("%1 matches").arg(matches.size()));
        } else {
            result_->clear();
        }
        browser_->setExtraSelections(matches);
    }

    /// Keeps to the match there is while it still fits.
    void search_as_typed() {
        mark_matches();
        QTextCursor from = browser_->textCursor();
        from.setPosition(from.selectionStart());
        browser_->setTextCursor(from);
        go({});
    }

    /// Goes round the end.
    void go(QTextDocument::FindFlags direction) {
        if (field_->text().isEmpty() || browser_->find(field_->text(), direction)) {
            return;
        }
        const QTextCursor before = browser_->textCursor();
        browser_->moveCursor(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End
                                                                             : QTextCursor::Start);
        if (!browser_->find(field_->text(), direction)) {
            browser_->setTextCursor(before);
        }
    }

    QPushButton* back_;
    QLineEdit* field_;
    QPushButton* previous_;
    QPushButton* next_;
    QLabel* result_;
    QTextBrowser* browser_;
};

HelpPane::HelpPane(Container& parent, std::string_view accessible_name)
    : widget_(new HelpPaneWidget(to_qstring(accessible_name), parent.widget())) {
    parent.add({}, widget_, Place::line);
}

bool HelpPane::show_page(std::string_view path) {
    const QFileInfo page(to_qstring(path));
    if (!page.isFile() || !page.isReadable()) {
        return false;
    }
    widget_->browser().setSource(QUrl::fromLocalFile(page.absoluteFilePath()));
    widget_->browser().setFocus();
    return true;
}

void HelpPane::set_display_size(int columns, int lines) {
    widget_->browser().setMinimumSize(text_size(widget_->browser(), columns, lines));
}
