#include "screens/kit/kit.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTextCharFormat>
#include <QToolButton>
#include <algorithm>

#include "screens/kit/bindings.h"
#include "screens/kit/icons.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

const char* nameOf(ButtonKind kind) {
  switch (kind) {
    case ButtonKind::Primary:
      return "primary";
    case ButtonKind::Quiet:
      return "quiet";
    case ButtonKind::Danger:
      return "danger";
    case ButtonKind::Secondary:
      break;
  }
  return "secondary";
}

// The head of a calendar looks like that of a grid, and its arrows are ours.
void dressHead(QCalendarWidget& calendar) {
  auto* const head = calendar.findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar"));
  if (head == nullptr) return;
  withTheme(*head, [head] {
    const auto paint = [](QWidget& widget, QPalette::ColorRole role, Rgb colour) {
      QPalette palette = widget.palette();
      palette.setColor(role, toColor(colour));
      widget.setPalette(palette);
    };
    paint(*head, QPalette::Highlight, Theme::current().colours().heading);
    for (auto* const button : head->findChildren<QToolButton*>())
      paint(*button, QPalette::HighlightedText, Theme::current().colours().headingText);
  });
  const std::pair<const char*, const char*> arrows[] = {{"qt_calendar_prevmonth", "back"},
                                                        {"qt_calendar_nextmonth", "forward"}};
  for (const auto& [button, name] : arrows)
    if (auto* const arrow = calendar.findChild<QToolButton*>(QLatin1String(button)))
      arrow->setIcon(icon(QLatin1String(name)));
}

void setType(QWidget& widget, Type type) {
  const char* const names[] = {"base", "small", "hint", "title", "large", "lead"};
  widget.setProperty("type", QLatin1String(names[static_cast<int>(type)]));
}

QChar letter(char mnemonic) {
  return mnemonic == 0 ? QChar() : QChar(QLatin1Char(mnemonic));
}

// Qt moves a lying scroll bar to the right with the left arrow key.
class ArrowScrollBar : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Left && event->modifiers() == Qt::NoModifier)
      triggerAction(SliderSingleStepSub);
    else if (event->key() == Qt::Key_Right && event->modifiers() == Qt::NoModifier)
      triggerAction(SliderSingleStepAdd);
    else
      QScrollBar::keyPressEvent(event);
  }
};

}  // namespace

void dress(QAbstractButton& button, const ButtonLook& look) {
  button.setProperty("kind", QLatin1String(nameOf(look.kind)));
  if (look.iconOnly) button.setProperty("iconOnly", true);
  if (look.strong) button.setProperty("strong", true);
  if (look.tall) button.setProperty("tall", true);
  if (look.icon == nullptr) return;
  const IconInk ink = look.kind == ButtonKind::Primary  ? IconInk::OnAccent
                      : look.kind == ButtonKind::Danger ? IconInk::Danger
                                                        : IconInk::Text;
  button.setIcon(icon(QLatin1String(look.icon), ink));
  button.setIconSize(look.iconOnly ? QSize(18, 18) : QSize(22, 18));
}

QPushButton* Kit::button(std::string_view name, ButtonLook look) {
  auto* const widget = new QPushButton;
  widget->setAutoDefault(false);
  dress(*widget, look);
  bind(*widget, control<Button>(name), letter(look.mnemonic));
  if (look.iconOnly) {
    withTheme(*widget, [widget] { widget->setFixedWidth(Theme::current().control()); });
  } else {
    widget->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  }
  return widget;
}

QWidget* Kit::joined(std::initializer_list<std::string_view> names, bool firstStrong) {
  auto* const group = new QWidget;
  auto* const layout = new QHBoxLayout(group);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  std::size_t i = 0;
  for (const std::string_view name : names) {
    auto* const widget = new QToolButton;
    dress(*widget, {.strong = firstStrong && i == 0});
    widget->setFocusPolicy(Qt::StrongFocus);
    const bool first = i == 0, last = i + 1 == names.size();
    const char* const joint = first && last ? "only" : first ? "first" : last ? "last" : "middle";
    widget->setProperty("joint", QLatin1String(joint));
    widget->setProperty("brief", !first && control<Button>(name).caption().size() == 2);
    bind(*widget, control<Button>(name));
    layout->addWidget(widget);
    ++i;
  }
  group->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return group;
}

QWidget* Kit::joinedList(std::string_view button, std::string_view list, const QString& widest, const QString& called) {
  QWidget* const group = joined({button});
  group->findChild<QToolButton*>()->setProperty("joint", QStringLiteral("first"));
  QComboBox* const items = combo(list, widest);
  items->setProperty("joint", QStringLiteral("last"));
  items->setAccessibleName(called);
  withTheme(*items, [items, widest] {
    items->setFixedWidth(QFontMetrics(Theme::current().base()).horizontalAdvance(widest) + 21);
  });
  group->layout()->addWidget(items);
  return group;
}

QToolButton* Kit::key(std::string_view name) {
  auto* const widget = new QToolButton;
  dress(*widget, {.strong = true});
  widget->setProperty("key", true);
  widget->setFocusPolicy(Qt::StrongFocus);
  bind(*widget, control<Label>(name));
  withTheme(*widget, [widget] { widget->setMinimumWidth(Theme::current().control()); });
  return widget;
}

QLabel* Kit::label(std::string_view name, Type type) {
  auto* const widget = new QLabel;
  setType(*widget, type);
  bind(*widget, control<Label>(name));
  return widget;
}

StateMark* Kit::stateMark(std::string_view grid) {
  auto* const widget = new StateMark(QStringLiteral("non aggiornato"));
  bind(static_cast<QLabel&>(*widget), control<Label>("LblStato_" + std::string(grid)));
  return widget;
}

SmallNote* Kit::note(std::string_view name, Qt::TextElideMode gives, Qt::Alignment at) {
  auto* const widget = new SmallNote(gives, at);
  bind(static_cast<QLabel&>(*widget), control<Label>(name));
  return widget;
}

ClickLabel* Kit::clickLabel(std::string_view name, Type type, char mnemonic) {
  auto* const widget = new ClickLabel;
  setType(*widget, type);
  bind(*widget, control<Label>(name), letter(mnemonic));
  return widget;
}

ClickLabel* Kit::swatch(std::string_view name, Rgb colour, bool captionShown) {
  auto* const widget = new ClickLabel;
  widget->setSwatch(colour);
  widget->setCaptionShown(captionShown);
  bind(*widget, control<Label>(name));
  return widget;
}

ElidedLabel* Kit::path(std::string_view name) {
  auto* const widget = new ElidedLabel;
  bind(static_cast<QLabel&>(*widget), control<Label>(name));
  widget->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  return widget;
}

QComboBox* Kit::combo(std::string_view name, const QString& widest) {
  auto* const widget = new QComboBox;
  bind(*widget, control<Combo>(name));
  if (widest.isEmpty()) {
    widget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  } else {
    // The text, the arrow, padding and borders.
    withTheme(*widget, [widget, widest] {
      widget->setFixedWidth(QFontMetrics(Theme::current().base()).horizontalAdvance(widest) + 44);
    });
  }
  return widget;
}

QCheckBox* Kit::check(std::string_view name, char mnemonic) {
  auto* const widget = new QCheckBox;
  bind(*widget, control<Check>(name), letter(mnemonic));
  withTheme(*widget, [widget] { widget->setMinimumHeight(std::max(24, Theme::current().row())); });
  return widget;
}

QRadioButton* Kit::option(std::string_view name, char mnemonic) {
  auto* const widget = new QRadioButton;
  bind(*widget, control<Check>(name), letter(mnemonic));
  withTheme(*widget, [widget] { widget->setMinimumHeight(std::max(24, Theme::current().row())); });
  return widget;
}

QLineEdit* Kit::edit(std::string_view name, const QString& widest, bool clearButton) {
  auto* const widget = new QLineEdit;
  widget->setClearButtonEnabled(clearButton);
  bind(*widget, control<Text>(name));
  if (!widest.isEmpty())
    withTheme(*widget, [widget, widest] {
      widget->setFixedWidth(QFontMetrics(Theme::current().base()).horizontalAdvance(widest) + 22);
    });
  return widget;
}

QScrollBar* Kit::scroll(std::string_view name) {
  auto* const widget = new ArrowScrollBar(Qt::Horizontal);
  widget->setFocusPolicy(Qt::StrongFocus);
  bind(*widget, control<Scroll>(name));
  return widget;
}

QTabWidget* Kit::tabs(std::string_view name, const std::vector<QWidget*>& pages) {
  auto* const widget = new QTabWidget;
  widget->setDocumentMode(true);
  widget->tabBar()->setDrawBase(false);
  widget->tabBar()->setElideMode(Qt::ElideNone);
  widget->tabBar()->setExpanding(false);
  for (QWidget* const page : pages) widget->addTab(page, QString());
  bind(*widget, control<Tabs>(name));
  return widget;
}

QListWidget* Kit::lines(std::string_view name, int lines, const QString& widest) {
  auto* const widget = new QListWidget;
  widget->setSelectionMode(QAbstractItemView::NoSelection);
  bind(*widget, control<LineList>(name));
  withTheme(*widget, [widget, lines, widest] {
    const QFontMetrics metrics(Theme::current().base());
    if (!widest.isEmpty()) {
      widget->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
      widget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
      widget->setFixedSize(metrics.horizontalAdvance(widest) + 16, lines * metrics.height() + 4);
    } else {
      widget->setMinimumHeight(lines * metrics.height() + 4);
    }
  });
  return widget;
}

QProgressBar* Kit::progress(std::string_view name) {
  auto* const widget = new QProgressBar;
  bind(*widget, control<Progress>(name));
  return widget;
}

QCalendarWidget* Kit::calendar(std::string_view name) {
  auto* const widget = new QCalendarWidget;
  widget->setLocale(QLocale(QLocale::Italian, QLocale::Italy));
  widget->setFirstDayOfWeek(Qt::Monday);
  widget->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  // Red is no colour of the chrome: weekends are days like the others.
  widget->setWeekdayTextFormat(Qt::Saturday, QTextCharFormat());
  widget->setWeekdayTextFormat(Qt::Sunday, QTextCharFormat());
  bind(*widget, control<Calendar>(name));
  dressHead(*widget);
  return widget;
}

GridView* Kit::grid(std::string_view name, GridLook look) {
  return new GridView(control<GridControl>(name), std::move(look));
}

QLabel* Kit::text(const QString& text, Type type, QWidget* buddy) {
  auto* const label = new QLabel(text);
  setType(*label, type);
  label->setBuddy(buddy);
  return label;
}

QWidget* Kit::captioned(const QString& text, QWidget* widget) {
  QString plain = text;
  widget->setAccessibleName(plain.remove(u'&'));
  return holding(row({Kit::text(text, Type::Hint, widget), widget}));
}

}  // namespace trv5
