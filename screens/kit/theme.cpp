#include "screens/kit/theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QRadioButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>
#include <QWidget>
#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "screens/kit/icons.h"

static void initScreensResources() {
  Q_INIT_RESOURCE(screens);
}

namespace trv5 {
namespace {

constexpr int kPixmapCacheKilobytes = 1024;

QPalette paletteOf(const ChromeColours& c) {
  QPalette palette;
  const auto set = [&](QPalette::ColorRole role, Rgb colour) { palette.setColor(role, toColor(colour)); };
  set(QPalette::Window, c.window);
  set(QPalette::WindowText, c.text);
  set(QPalette::Base, c.field);
  set(QPalette::AlternateBase, c.panel);
  set(QPalette::Text, c.text);
  set(QPalette::Button, c.button);
  set(QPalette::ButtonText, c.text);
  set(QPalette::BrightText, c.danger);
  set(QPalette::ToolTipBase, c.field);
  set(QPalette::ToolTipText, c.text);
  set(QPalette::PlaceholderText, c.text2);
  set(QPalette::Highlight, c.accent);
  set(QPalette::HighlightedText, c.onAccent);
  set(QPalette::Link, c.accent);
  set(QPalette::LinkVisited, c.accent);
  set(QPalette::Light, c.panel);
  set(QPalette::Midlight, c.line);
  set(QPalette::Mid, c.edge);
  set(QPalette::Dark, c.edge);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, toColor(c.disabled));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, toColor(c.edge));
  palette.setColor(QPalette::Disabled, QPalette::Base, toColor(c.panel));
  return palette;
}

// Layouts that set no spacing of their own take the unit, so that they follow a change of density or font.
class UnitStyle : public QProxyStyle {
 public:
  explicit UnitStyle(const Theme& theme)
      : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), m_theme(theme) {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    // Qt's own dialogs are laid out as Qt means them.
    const auto own = [widget] {
      return widget == nullptr || qobject_cast<const QDialog*>(widget->window()) == nullptr;
    };
    switch (metric) {
      case PM_LayoutHorizontalSpacing:
      case PM_LayoutVerticalSpacing:
        if (own()) return m_theme.unit();
        break;
      case PM_LayoutLeftMargin:
      case PM_LayoutTopMargin:
      case PM_LayoutRightMargin:
      case PM_LayoutBottomMargin:
        // Padding belongs to panels and windows; pages and rows inside them begin at the same edge.
        if (widget != nullptr && own()) return padding(metric, *widget);
        break;
      case PM_ButtonIconSize:
      case PM_SmallIconSize:
        return 18;
      case PM_SplitterWidth:
        return m_theme.unit();
      default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
  }

  // One mark of the focus for each control: buttons, lists and tabs have theirs from the style sheet, check boxes and
  // option buttons this one.
  static bool drawFocus(const QStyleOption& option, QPainter& painter, const QWidget* widget) {
    const auto* const button = qobject_cast<const QAbstractButton*>(widget);
    const bool box =
        qobject_cast<const QCheckBox*>(widget) != nullptr || qobject_cast<const QRadioButton*>(widget) != nullptr;
    if (box) {
      painter.save();
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setPen(QPen(toColor(Theme::current().colours().accent), 2));
      painter.setBrush(Qt::NoBrush);
      painter.drawRoundedRect(
          QRectF(option.rect).adjusted(-1, 0, 1, 0).intersected(QRectF(widget->rect())).adjusted(1, 1, -1, -1), 3, 3);
      painter.restore();
    }
    return box || button != nullptr || qobject_cast<const QTabBar*>(widget) != nullptr ||
           qobject_cast<const QComboBox*>(widget) != nullptr;
  }

  // The outline of check boxes and option buttons, which Fusion takes from the ground, is the edge of all controls.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_FrameFocusRect && drawFocus(*option, *painter, widget)) return;
    if (element == PE_FrameWindow) {
      painter->setPen(toColor(Theme::current().colours().edge));
      painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
      return;
    }
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton) {
      QStyleOptionButton edged;
      if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option)) edged = *button;
      edged.QStyleOption::operator=(*option);
      edged.palette.setColor(QPalette::Window, option->palette.color(QPalette::Mid).lighter(140));
      QProxyStyle::drawPrimitive(element, &edged, painter, widget);
      return;
    }
    if (element == PE_IndicatorArrowDown || element == PE_IndicatorArrowUp || element == PE_IndicatorArrowLeft ||
        element == PE_IndicatorArrowRight) {
      const QStyleOption arrow = withPaletteOfScheme(*option);
      QProxyStyle::drawPrimitive(element, &arrow, painter, widget);
      return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }

  // Fusion writes the title of an inner window in white or black, whatever the ground: here it has the colours of what
  // is current, or of a heading.
  void drawTitleBar(const QStyleOptionTitleBar& bar, QPainter& painter, const QWidget* widget) const {
    const ChromeColours& c = Theme::current().colours();
    const bool active = (bar.titleBarState & State_Active) != 0;
    const auto part = [&](SubControl control) { return proxy()->subControlRect(CC_TitleBar, &bar, control, widget); };
    painter.fillRect(bar.rect, toColor(active ? c.accent : c.heading));
    painter.setPen(toColor(active ? c.accent : c.edge));
    painter.drawRect(bar.rect.adjusted(0, 0, -1, -1));
    bar.icon.paint(&painter, part(SC_TitleBarSysMenu));
    painter.setPen(toColor(active ? c.onAccent : c.headingText));
    const QRect room = part(SC_TitleBarLabel);
    painter.drawText(room, Qt::AlignCenter, bar.fontMetrics.elidedText(bar.text, Qt::ElideRight, room.width()));
    const QRect close = part(SC_TitleBarCloseButton);
    const bool pointedAt = (bar.activeSubControls & SC_TitleBarCloseButton) != 0;
    if (pointedAt) painter.fillRect(close, toColor(active ? c.onAccent : c.line));
    icon(QStringLiteral("close"), active && !pointedAt ? IconInk::OnAccent : IconInk::Text).paint(&painter, close);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    if (const auto* const title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
        control == CC_TitleBar && title != nullptr) {
      painter->save();
      drawTitleBar(*title, *painter, widget);
      painter->restore();
      return;
    }
    // The thumb of a scroll bar stands out like the border of a control.
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
      return;
    }
    QStyleOptionSlider groove = withPaletteOfScheme(*bar);
    groove.subControls &= ~SC_ScrollBarSlider;
    QProxyStyle::drawComplexControl(control, &groove, painter, widget);
    if (bar->maximum <= bar->minimum) return;
    const ChromeColours& c = Theme::current().colours();
    const bool held = (bar->activeSubControls & SC_ScrollBarSlider) != 0 && (bar->state & State_MouseOver) != 0;
    const QRect thumb = proxy()->subControlRect(CC_ScrollBar, bar, SC_ScrollBarSlider, widget).adjusted(2, 2, -2, -2);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(toColor(!(bar->state & State_Enabled)        ? c.line
                              : (bar->state & State_HasFocus) != 0 ? c.accent
                              : held                               ? c.text2
                                                                   : c.edge));
    painter->drawRoundedRect(thumb, 3, 3);
    painter->restore();
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    // Nothing moves by itself.
    if (hint == SH_Widget_Animation_Duration) return 0;
    // Some desktops put green and red pictures on the buttons of boxes: colours belong to the data.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    // Inner windows have square corners.
    if (hint == SH_WindowFrame_Mask) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

 private:
  // Fusion keeps a picture of an arrow for each palette, and each widget has one of its own.
  template <class Option>
  Option withPaletteOfScheme(const Option& option) const {
    Option shared = option;
    shared.palette = m_theme.dark() ? m_darkPalette : m_lightPalette;
    shared.palette.setCurrentColorGroup(option.palette.currentColorGroup());
    return shared;
  }

  int padding(PixelMetric metric, const QWidget& widget) const {
    const int padding = m_theme.panelPadding();
    // The page of a tab has its own: the line below the tabs runs over the whole panel, and parts them at the top.
    if (widget.property("page").toBool()) return metric == PM_LayoutTopMargin ? 0 : padding;
    const bool padded = widget.isWindow() || (widget.property("panel").toBool() && !widget.property("bare").toBool());
    return padded ? padding : 0;
  }

  const Theme& m_theme;
  const QPalette m_lightPalette = paletteOf(kLightColours), m_darkPalette = paletteOf(kDarkColours);
};

bool desktopIsDark() {
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace

Theme::Theme(QApplication& app) : m_app(app), m_desktopDark(desktopIsDark()), m_dark(m_desktopDark) {
  assert(of(app) == nullptr);
  setParent(&app);
  initScreensResources();
  // Each icon leaves its pictures there, under names that nobody asks for again and that Qt keeps when the pictures
  // have gone: the windows share this one, also those that Qt would give an icon of the style.
  m_app.setWindowIcon(QIcon(QStringLiteral(":/screens/icons/mark.svg")));
  QPixmapCache::setCacheLimit(kPixmapCacheKilobytes);
  m_app.setStyle(new UnitStyle(*this));
  apply();
}

Theme::~Theme() {
  // The style asks the theme as long as it is in use.
  m_app.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

Theme* Theme::of(const QApplication& app) {
  return app.findChild<Theme*>(QString(), Qt::FindDirectChildrenOnly);
}

const Theme& Theme::current() {
  return edit();
}

Theme& Theme::edit() {
  Theme* const theme = of(*qApp);
  assert(theme != nullptr);
  return *theme;
}

void Theme::setDark(bool dark) {
  if (m_dark == dark) return;
  m_dark = dark;
  apply();
}

void Theme::setScheme(Scheme scheme) {
  m_scheme = scheme;
  setDark(scheme == Scheme::System ? m_desktopDark : scheme == Scheme::Dark);
}

void Theme::setWindowHeight(int height) {
  const Density density = height < 900 ? Density::Compact : Density::Comfortable;
  if (m_density == density) return;
  m_density = density;
  apply();
}

void Theme::setBasePoints(double points) {
  if (points > 0) points = std::clamp(std::round(points * 2) / 2, 9.5, 16.0);
  if (m_points == points) return;
  m_points = points;
  apply();
}

double Theme::basePoints() const {
  if (m_points > 0) return m_points;
  return m_density == Density::Compact ? 10.0 : 10.5;
}

double Theme::smallPoints() const {
  return std::max(9.5, basePoints() - 1.0);
}

// Asked for at each layout of each row: made once a change.
void Theme::measure() {
  QFont font;
  font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
  font.setPointSizeF(basePoints());
  m_base = m_small = m_title = font;
  m_small.setPointSizeF(smallPoints());
  m_smallStrong = m_small;
  m_smallStrong.setWeight(QFont::DemiBold);
  m_title.setWeight(QFont::DemiBold);
  m_large = m_title;
  m_large.setPointSizeF(largePoints());
  // Without its leading: 19 px at 10.5 pt, 18 px at 10 pt.
  m_line = QFontMetrics(m_base).height();
  m_smallLine = QFontMetrics(m_smallStrong).height();
}

int Theme::row() const {
  return m_line + (m_density == Density::Compact ? 2 : 5);
}

int Theme::heading() const {
  return m_smallLine + (m_density == Density::Compact ? 5 : 8);
}

int Theme::control() const {
  return m_line + (m_density == Density::Compact ? 8 : 11);
}

int Theme::low() const {
  return m_density == Density::Compact ? m_line + 6 : control();
}

int Theme::unit() const {
  return m_density == Density::Compact ? m_line / 3 : m_line * 8 / 19;
}

QString Theme::styleSheet() const {
  QFile file(QStringLiteral(":/screens/theme.qss"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString sheet = QString::fromUtf8(file.readAll());
  const ChromeColours& c = colours();
  const std::pair<const char*, Rgb> named[] = {{"@window", c.window},     {"@panel", c.panel},
                                               {"@field", c.field},       {"@button", c.button},
                                               {"@void", c.voidArea},     {"@rail", c.rail},
                                               {"@line", c.line},         {"@edge", c.edge},
                                               {"@text2", c.text2},       {"@text", c.text},
                                               {"@disabled", c.disabled}, {"@accent", c.accent},
                                               {"@onAccent", c.onAccent}, {"@headingText", c.headingText},
                                               {"@heading", c.heading},   {"@danger", c.danger}};
  // Beside a search, for two letters: 25 px and no less with padding and borders, which are one more at the last.
  const int brief = std::max(22, QFontMetrics(base()).horizontalAdvance(QStringLiteral("3R")) + 5);
  // The inside of a control: its height without the border of 1 px on both sides.
  const std::pair<const char*, QString> sizes[] = {
      {"@focusTabPad", QString::number(unit() / 2)},
      {"@focusUnit", QString::number(unit() - 2)},
      {"@inner", QString::number(control() - 2)},
      {"@figures", QString::number(figurePoints())},
      {"@lowFocus", QString::number(low() - 4)},
      {"@low", QString::number(low() - 2)},
      {"@tallFocus", QString::number(control() + 4)},
      {"@tall", QString::number(control() + 6)},
      {"@chip", m_dark ? QStringLiteral("#FFFFFF") : QStringLiteral("transparent")},
      {"@focus", QString::number(control() - 4)},
      {"@small", QString::number(smallPoints())},
      {"@large", QString::number(largePoints())},
      {"@briefLast", QString::number(brief - 1)},
      {"@brief", QString::number(brief)},
      {"@tabPad", QString::number(unit() / 2 + 2)},
      {"@unit", QString::number(unit())},
      {"@theme", m_dark ? QStringLiteral("dark") : QStringLiteral("light")}};
  for (const auto& [name, colour] : named)
    sheet.replace(QLatin1String(name) + QLatin1Char(';'), toColor(colour).name() + QLatin1Char(';'));
  for (const auto& [name, value] : sizes) sheet.replace(QLatin1String(name), value);
  return sheet;
}

void Theme::apply() {
  Q_EMIT aboutToChange();
  measure();
  m_app.setPalette(paletteOf(colours()));
  m_app.setFont(base());
  m_windows.removeAll(nullptr);
  for (QWidget* const window : std::as_const(m_windows)) window->setStyleSheet(styleSheet());
  Q_EMIT changed();
}

void Theme::dressWindow(QWidget& window) {
  m_windows.append(&window);
  window.setStyleSheet(styleSheet());
}

void withTheme(QObject& owner, const std::function<void()>& set) {
  QObject::connect(&Theme::current(), &Theme::changed, &owner, set);
  set();
}

}  // namespace trv5
