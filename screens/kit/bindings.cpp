#include "screens/kit/bindings.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>

#include "core/text.h"
#include "screens/kit/click_label.h"
#include "screens/kit/ink.h"
#include "screens/kit/theme.h"
#include "screens/kit/user_events.h"

namespace trv5 {
namespace {

// Lives as long as the widget, as its child: the control then has no listener any more.
class Link : public QObject {
 public:
  Link(QWidget& widget, Control& control, std::function<void()> follow)
      : QObject(&widget), m_widget(widget), m_control(control) {
    widget.setObjectName(qs(control.name()));
    control.setListener(
        [this, follow = std::move(follow)] {
          followLooks();
          follow();
        },
        [&widget] { widget.setFocus(Qt::OtherFocusReason); });
    new UserEvents(widget, control);
  }
  ~Link() override { m_control.setListener({}); }

  void followLooks() {
    m_widget.setEnabled(m_control.enabled());
    if (const QString tip = qs(m_control.toolTip()); m_widget.toolTip() != tip) m_widget.setToolTip(tip);
    if (m_widget.property("aside").toBool() != m_control.aside()) {
      m_widget.setProperty("aside", m_control.aside());
      m_widget.style()->unpolish(&m_widget);
      m_widget.style()->polish(&m_widget);
    }
    const QString sheet = colourSheet();
    if (m_widget.styleSheet() != sheet) m_widget.setStyleSheet(sheet);
  }

 private:
  // Data colours carried by a control are the same in both themes, with ink to match.
  QString colourSheet() const {
    QString sheet;
    if (m_control.back()) {
      const Rgb back = *m_control.back();
      sheet += QStringLiteral("background-color: %1;").arg(toColor(back).name());
      const Rgb ink = readableInk(m_control.fore().value_or(kBlack), back);
      const Rgb quiet = kLightColours.text2;
      sheet +=
          QStringLiteral("color: %1;").arg(toColor(m_control.enabled() && !m_control.aside() ? ink : quiet).name());
    } else if (m_control.fore() && *m_control.fore() != kBlack) {
      sheet += QStringLiteral("color: %1;").arg(toColor(*m_control.fore()).name());
    }
    return sheet;
  }

  QWidget& m_widget;
  Control& m_control;
};

// A line edit counts UTF-16 units, a control characters.
int charactersBefore(const QString& text, int unit) {
  return characterCount(text.left(unit).toStdString());
}

int unitsBefore(const std::string& text, int character) {
  return static_cast<int>(qs(text.substr(0, byteOfCharacter(text, character))).size());
}

void showSelection(QLineEdit& widget, const Text& control) {
  const int start = unitsBefore(control.text(), control.selectionStart());
  const int length = unitsBefore(control.text(), control.selectionStart() + control.selectionLength()) - start;
  if (length == 0) {
    if (widget.hasSelectedText() || widget.cursorPosition() != start) widget.setCursorPosition(start);
  } else if (widget.selectionStart() != start || widget.selectionLength() != length) {
    widget.setSelection(start, length);
  }
}

void setCaption(QAbstractButton& widget, const std::string& caption, QChar mnemonic) {
  const QString text = withMnemonic(caption, mnemonic);
  if (widget.property("iconOnly").toBool()) {
    widget.setAccessibleName(caption.empty() ? widget.toolTip() : qs(caption));
    return;
  }
  if (widget.text() != text) widget.setText(text);
  widget.setAccessibleName(qs(caption));
}

}  // namespace

void follow(QWidget& widget, Control& control, const std::function<void()>& show) {
  (new Link(widget, control, show))->followLooks();
  show();
}

QString withMnemonic(const std::string& caption, QChar mnemonic) {
  const QString text = qs(caption);
  int at = -1;
  if (!mnemonic.isNull()) {
    at = static_cast<int>(text.indexOf(mnemonic, 0, Qt::CaseSensitive));
    if (at < 0) at = static_cast<int>(text.indexOf(mnemonic, 0, Qt::CaseInsensitive));
  }
  QString out;
  for (int i = 0; i < text.size(); ++i) {
    if (i == at || text[i] == u'&') out += u'&';
    out += text[i];
  }
  return out;
}

void bind(QAbstractButton& widget, Button& control, QChar mnemonic) {
  follow(widget, control, [&widget, &control, mnemonic] { setCaption(widget, control.caption(), mnemonic); });
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&control] { control.press(); });
}

void bind(QAbstractButton& widget, Label& control) {
  follow(widget, control, [&widget, &control] { setCaption(widget, control.text(), {}); });
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&control] { control.click(); });
}

void bind(QAbstractButton& widget, Check& control, QChar mnemonic) {
  widget.setCheckable(true);
  follow(widget, control, [&widget, &control, mnemonic] {
    setCaption(widget, control.caption(), mnemonic);
    const QSignalBlocker quiet(widget);
    widget.setChecked(control.checked());
  });
  QObject::connect(&widget, &QAbstractButton::toggled, &widget, [&control](bool on) { control.set(on); });
}

void bind(QLabel& widget, Label& control) {
  follow(widget, control, [&widget, &control] { widget.setText(qs(control.text())); });
}

void bind(ClickLabel& widget, Label& control, QChar mnemonic) {
  follow(widget, control, [&widget, &control, mnemonic] {
    widget.setText(mnemonic.isNull() ? qs(control.text()) : withMnemonic(control.text(), mnemonic));
    widget.setAccessibleName(control.toolTip().empty() ? qs(control.text()) : qs(control.toolTip()));
  });
  QObject::connect(&widget, &ClickLabel::clicked, &widget, [&control] { control.click(); });
}

void bind(QLineEdit& widget, Label& control) {
  widget.setReadOnly(true);
  follow(widget, control, [&widget, &control] {
    if (widget.text() != qs(control.text())) widget.setText(qs(control.text()));
  });
}

void bind(QComboBox& widget, Combo& control) {
  widget.setEditable(control.editable());
  widget.setInsertPolicy(QComboBox::NoInsert);
  widget.setMaxVisibleItems(20);
  widget.setFocusPolicy(Qt::StrongFocus);                // not by the wheel, which would then turn the list
  if (control.editable()) widget.setCompleter(nullptr);  // "1" must not grow into "10" under the user's hands
  if (control.digitsOnly())
    widget.setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), &widget));
  auto shown = std::make_shared<std::vector<std::string>>();
  follow(widget, control, [&widget, &control, shown] {
    const QSignalBlocker quiet(widget);
    if (*shown != control.items()) {
      *shown = control.items();
      widget.clear();
      for (const std::string& item : *shown) widget.addItem(qs(item));
    }
    if (widget.currentIndex() != control.index()) widget.setCurrentIndex(control.index());
    if (control.editable() && widget.currentText() != qs(control.text())) widget.setEditText(qs(control.text()));
  });
  QObject::connect(&widget, &QComboBox::activated, &widget, [&control](int index) { control.pick(index); });
  if (control.editable())
    QObject::connect(widget.lineEdit(), &QLineEdit::textEdited, &widget,
                     [&control](const QString& text) { control.type(text.toStdString()); });
}

void bind(QLineEdit& widget, Text& control) {
  widget.setMaxLength(control.maximumLength());
  follow(widget, control, [&widget, &control] {
    const QSignalBlocker quiet(widget);
    if (widget.text() != qs(control.text())) widget.setText(qs(control.text()));
    showSelection(widget, control);
  });
  QObject::connect(&widget, &QLineEdit::textChanged, &widget, [&widget, &control](const QString& text) {
    control.edit(text.toStdString(), charactersBefore(text, widget.cursorPosition()));
  });
  const auto select = [&widget, &control] {
    // In the middle of a change the text comes by itself, and brings the cursor.
    if (widget.text() != qs(control.text())) return;
    const int start = widget.hasSelectedText() ? widget.selectionStart() : widget.cursorPosition();
    const int before = charactersBefore(widget.text(), start);
    control.select(before, charactersBefore(widget.text(), start + widget.selectionLength()) - before);
  };
  QObject::connect(&widget, &QLineEdit::selectionChanged, &widget, select);
  QObject::connect(&widget, &QLineEdit::cursorPositionChanged, &widget, select);
}

void bind(QScrollBar& widget, Scroll& control) {
  widget.setPageStep(100);
  follow(widget, control, [&widget, &control] {
    const QSignalBlocker quiet(widget);
    widget.setRange(control.minimum(), std::max(control.minimum(), control.maximum()));
    widget.setValue(control.value());
  });
  QObject::connect(&widget, &QScrollBar::valueChanged, &widget, [&control](int value) { control.set(value); });
}

namespace {

// A tab that can't be reached stays reachable while it is in front: Qt would leave it by itself.
void followTabs(QTabBar& bar, const Tabs& control) {
  for (int i = 0; i < bar.count(); ++i) {
    const int given = bar.tabData(i).toInt();
    bar.setTabEnabled(i, control.tabEnabled(given) || given == control.index());
    if (given == control.index() && bar.currentIndex() != i) bar.setCurrentIndex(i);
  }
}

void linkTabs(QWidget& widget, QTabBar& bar, Tabs& control) {
  follow(widget, control, [&bar, &control] { followTabs(bar, control); });
  QObject::connect(&bar, &QTabBar::currentChanged, &widget, [&bar, &control](int i) {
    if (i >= 0 && bar.tabData(i).isValid()) control.set(bar.tabData(i).toInt());
  });
}

}  // namespace

void bind(QTabBar& widget, Tabs& control) {
  for (const auto& [given, caption] : control.captions())
    widget.setTabData(widget.addTab(withMnemonic(caption, {})), given);
  linkTabs(widget, widget, control);
}

void bind(QTabWidget& widget, Tabs& control) {
  int i = 0;
  for (const auto& [given, caption] : control.captions()) {
    widget.tabBar()->setTabText(i, withMnemonic(caption, {}));
    widget.tabBar()->setTabData(i++, given);
  }
  linkTabs(widget, *widget.tabBar(), control);
}

void bind(QListWidget& widget, LineList& control) {
  widget.setProperty("lines", true);
  follow(widget, control, [&widget, &control] {
    const std::vector<std::string>& lines = control.lines();
    const int same = std::min(widget.count(), static_cast<int>(lines.size()));
    for (int i = 0; i < same; ++i)
      if (const QString text = qs(lines[static_cast<std::size_t>(i)]); widget.item(i)->text() != text)
        widget.item(i)->setText(text);
    for (int i = same; i < static_cast<int>(lines.size()); ++i) widget.addItem(qs(lines[static_cast<std::size_t>(i)]));
    while (widget.count() > static_cast<int>(lines.size())) delete widget.takeItem(widget.count() - 1);
    widget.scrollToBottom();
  });
}

void bind(QProgressBar& widget, Progress& control) {
  widget.setTextVisible(false);
  const auto show = [&widget, &control] {
    widget.setRange(0, std::max(1, control.maximum()));
    widget.setValue(control.maximum() > 0 ? control.value() : 0);
  };
  // Operations hold the thread: the bar paints itself, some thirty times a second, and no event is run meanwhile. What
  // it skips it shows when the operation is over.
  auto* const later = new QTimer(&widget);
  later->setSingleShot(true);
  QObject::connect(later, &QTimer::timeout, &widget, show);
  auto clock = std::make_shared<QElapsedTimer>();
  follow(widget, control, [&widget, show, later, clock] {
    if (clock->isValid() && clock->elapsed() < 33) {
      if (!later->isActive()) later->start(0);
      return;
    }
    clock->start();
    show();
    if (widget.isVisible()) widget.repaint();
  });
}

void bind(QCalendarWidget& widget, Calendar& control) {
  const QString form = QStringLiteral("dd/MM/yyyy");
  follow(widget, control, [&widget, &control, form] {
    const QDate date = QDate::fromString(qs(control.date()), form);
    if (!date.isValid() || widget.selectedDate() == date) return;
    const QSignalBlocker quiet(widget);
    widget.setSelectedDate(date);
  });
  QObject::connect(&widget, &QCalendarWidget::selectionChanged, &widget,
                   [&widget, &control, form] { control.set(widget.selectedDate().toString(form).toStdString()); });
  QObject::connect(&widget, &QCalendarWidget::clicked, &widget,
                   [&control, form](QDate date) { control.pick(date.toString(form).toStdString()); });
}

}  // namespace trv5
