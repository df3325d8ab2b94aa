// SPDX-License-Identifier: MIT
#include "toolkit/theme.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <memory>

namespace {

constexpr int menu_margin = 4;
constexpr int menu_item_padding = 5;
constexpr int button_padding = 24;
constexpr int title_indent = 12;
constexpr int picture_size = 20;  ///< on buttons, beside the usual font

/// The colours of one of the two sets.
struct Colours {
    QColor button;
    QColor window;
    QColor base;
    QColor alternate_base;
    QColor text;
    QColor faded;
    QColor line;
    QColor tool_tip;
};

const Colours light_colours{.button = QColor(0xe6, 0xe9, 0xef),
                            .window = QColor(0xee, 0xf0, 0xf4),
                            .base = Qt::white,
                            .alternate_base = QColor(0xf5, 0xf6, 0xf9),
                            .text = QColor(0x1f, 0x24, 0x2d),
                            .faded = QColor(0x6a, 0x72, 0x80),
                            .line = QColor(0xd3, 0xd7, 0xdf),
                            .tool_tip = QColor(0xff, 0xfb, 0xe6)};
const Colours dark_colours{.button = QColor(0x3a, 0x42, 0x4e),
                           .window = QColor(0x2a, 0x30, 0x39),
                           .base = QColor(0x1f, 0x24, 0x2b),
                           .alternate_base = QColor(0x25, 0x2b, 0x33),
                           .text = QColor(0xe2, 0xe6, 0xec),
                           .faded = QColor(0x9a, 0xa3, 0xb1),
                           .line = QColor(0x4a, 0x53, 0x60),
                           .tool_tip = QColor(0x3a, 0x3a, 0x2c)};

const Colours* colours = &light_colours;

/// What pictures and help pages are drawn with by day, and what stands for it by night.
struct ColourPair {
    const char* light;
    const char* dark;
};
constexpr std::array colour_pairs{
    ColourPair{"#39424e", "#c8d0dc"}, ColourPair{"#2f6fb5", "#74b0f0"}, ColourPair{"#ffffff", "#2a3039"},
    ColourPair{"#eef0f4", "#3a424e"}, ColourPair{"#f6f7f9", "#2f3640"},
};

/// Fusion with roomier menus, whose title line reads as a heading.
class OrvikStyle : public QProxyStyle {
  public:
    OrvikStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        switch (metric) {
            case PM_MenuVMargin:
                return menu_margin;
            case PM_ButtonIconSize:
                return grown(picture_size);
            case PM_IndicatorWidth:
            case PM_IndicatorHeight:
            case PM_ExclusiveIndicatorWidth:
            case PM_ExclusiveIndicatorHeight:
            case PM_MenuButtonIndicator:
            case PM_ScrollBarExtent:
            case PM_ListViewIconSize:
            case PM_SmallIconSize:
                return grown(QProxyStyle::pixelMetric(metric, option, widget));
            default:
                return QProxyStyle::pixelMetric(metric, option, widget);
        }
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

    /// Fusion draws outlines in a shade of the window's colour, which nobody would see on a dark one.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (colours == &dark_colours &&
            (draw_outlined<QStyleOptionButton>(element, option, painter, widget) ||
             draw_outlined<QStyleOptionFrame>(element, option, painter, widget))) {
            return;
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
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
        painter->setPen(colours->faded);
        painter->drawText(title->rect.adjusted(title_indent, 0, -title_indent, -3), Qt::AlignVCenter,
                          title->text);
        painter->setPen(colours->line);
        painter->drawLine(title->rect.bottomLeft() + QPoint(title_indent, -2),
                          title->rect.bottomRight() - QPoint(title_indent, 2));
        painter->restore();
    }

  private:
    /// Pictures, dots and arrows keep step with a font that is larger than usual.
    static int grown(int pixels) {
        constexpr int usual_height = 16;  // of a line, in pixels
        const int height = QFontMetrics(QApplication::font()).height();
        return std::max(pixels, pixels * height / usual_height);
    }
    template <typename Option>
    bool draw_outlined(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const {
        const auto* known = qstyleoption_cast<const Option*>(option);
        const bool outlined = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton ||
                              element == PE_PanelLineEdit || element == PE_FrameLineEdit;
        if (known == nullptr || !outlined) {
            return false;
        }
        Option lighter(*known);
        lighter.palette.setColor(QPalette::Window, colours->faded);
        QProxyStyle::drawPrimitive(element, &lighter, painter, widget);
        return true;
    }
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

/// A drawing that is drawn when it is shown.
class DrawnIcon : public QIconEngine {
  public:
    explicit DrawnIcon(const QString& path) {
        QFile file(path);
        drawing_ = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override {
        constexpr double faded = 0.4;
        painter->setOpacity(mode == QIcon::Disabled ? faded : 1);
        renderer().render(painter, rect);
        painter->setOpacity(1);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon(*this); }
    bool isNull() override { return drawing_.isEmpty(); }

  private:
    DrawnIcon(const DrawnIcon& other) : QIconEngine(other), drawing_(other.drawing_) {}

    QSvgRenderer& renderer() {
        if (renderer_ == nullptr || drawn_in_ != colours) {
            drawn_in_ = colours;
            renderer_ = std::make_unique<QSvgRenderer>(in_theme(drawing_));
        }
        return *renderer_;
    }

    QByteArray drawing_;
    const Colours* drawn_in_ = nullptr;
    std::unique_ptr<QSvgRenderer> renderer_;  ///< in those colours
};

}  // namespace

void apply_theme(Shade shade) {
    colours = shade == Shade::dark ? &dark_colours : &light_colours;
    QPixmapCache::clear();
    QApplication::setStyle(new OrvikStyle);  // anew: the sizes that widgets have from it depend on the font
    QPalette palette(colours->button, colours->window);
    palette.setColor(QPalette::Base, colours->base);
    palette.setColor(QPalette::AlternateBase, colours->alternate_base);
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, colours->faded);
    palette.setColor(QPalette::ToolTipBase, colours->tool_tip);
    palette.setColor(QPalette::ToolTipText, colours->text);
    if (shade == Shade::dark) {
        palette.setColor(QPalette::Link, QColor(colour_pairs[1].dark));
    }
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, colours->text);
        palette.setColor(QPalette::Disabled, role,
                         shade == Shade::dark ? colours->faded.darker(130) : colours->faded.lighter(130));
    }
    QApplication::setPalette(palette);
}

QPalette desktop_palette() {
    const QPalette own = QApplication::palette();
    QApplication::setPalette(QPalette());
    QPalette desktops = QApplication::palette();
    if (own != desktops) {
        QApplication::setPalette(own);
    }
    return desktops;
}

QByteArray in_theme(QByteArray drawn) {
    if (colours == &dark_colours) {
        for (const ColourPair& pair : colour_pairs) {
            drawn.replace(pair.light, pair.dark);
        }
    }
    return drawn;
}

QIcon themed_icon(const QString& path) { return QIcon(new DrawnIcon(path)); }
