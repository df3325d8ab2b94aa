// SPDX-License-Identifier: MIT
#include "toolkit/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

#include <algorithm>

namespace {

constexpr int menu_margin = 4;
constexpr int menu_item_padding = 5;
constexpr int button_padding = 24;
constexpr int title_indent = 12;

const QColor text_colour(0x1f, 0x24, 0x2d);
const QColor faded_colour(0x6a, 0x72, 0x80);
const QColor line_colour(0xd3, 0xd7, 0xdf);

/// Fusion with roomier menus, whose title line reads as a heading.
class OrvikStyle : public QProxyStyle {
  public:
    OrvikStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        return metric == PM_MenuVMargin ? menu_margin : QProxyStyle::pixelMetric(metric, option, widget);
    }

    /// A menu higher than the screen scrolls; beside each other its items would be hard to follow.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        return hint == SH_Menu_Scrollable ? 1 : QProxyStyle::styleHint(hint, option, widget, more);
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        if (const QStyleOptionMenuItem* title = title_in(type == CT_MenuItem ? option : nullptr)) {
            const QFontMetrics metrics(heading(title->font));
            size = {2 * title_indent + metrics.horizontalAdvance(title->text), metrics.height() + 10};
        } else if (type == CT_MenuItem && !is_separator(option)) {
            size += QSize(menu_item_padding, menu_item_padding);
        } else if (type == CT_PushButton) {
            size.setWidth(std::max(size.width(), contents.width() + button_padding));
        }
        return size;
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const QStyleOptionMenuItem* title = title_in(element == CE_MenuItem ? option : nullptr);
        if (title == nullptr) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        painter->save();
        painter->setFont(heading(title->font));
        painter->setPen(faded_colour);
        painter->drawText(title->rect.adjusted(title_indent, 0, -title_indent, -3), Qt::AlignVCenter,
                          title->text);
        painter->setPen(line_colour);
        painter->drawLine(title->rect.bottomLeft() + QPoint(title_indent, -2),
                          title->rect.bottomRight() - QPoint(title_indent, 2));
        painter->restore();
    }

  private:
    static bool is_separator(const QStyleOption* option) {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        return item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator;
    }
    /// The option as that of a title line, null when it is another item's.
    static const QStyleOptionMenuItem* title_in(const QStyleOption* option) {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        return is_separator(option) && !item->text.isEmpty() ? item : nullptr;
    }
    static QFont heading(QFont font) {
        font.setBold(true);
        return font;
    }
};

}  // namespace

void apply_theme() {
    QApplication::setStyle(new OrvikStyle);
    QPalette palette(QColor(0xe6, 0xe9, 0xef), QColor(0xee, 0xf0, 0xf4));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf5, 0xf6, 0xf9));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, faded_colour);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfb, 0xe6));
    palette.setColor(QPalette::ToolTipText, text_colour);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, text_colour);
        palette.setColor(QPalette::Disabled, role, faded_colour.lighter(130));
    }
    QApplication::setPalette(palette);
}
