#include "screens/kit/user_events.h"

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <array>
#include <utility>

namespace trv5 {
namespace {

constexpr std::array<std::pair<int, Key::Code>, 15> kCodes = {{{Qt::Key_Return, Key::Code::Enter},
                                                               {Qt::Key_Enter, Key::Code::Enter},
                                                               {Qt::Key_Escape, Key::Code::Escape},
                                                               {Qt::Key_Tab, Key::Code::Tab},
                                                               {Qt::Key_Backtab, Key::Code::BackTab},
                                                               {Qt::Key_Left, Key::Code::Left},
                                                               {Qt::Key_Right, Key::Code::Right},
                                                               {Qt::Key_Up, Key::Code::Up},
                                                               {Qt::Key_Down, Key::Code::Down},
                                                               {Qt::Key_Home, Key::Code::Home},
                                                               {Qt::Key_End, Key::Code::End},
                                                               {Qt::Key_PageUp, Key::Code::PageUp},
                                                               {Qt::Key_PageDown, Key::Code::PageDown},
                                                               {Qt::Key_Backspace, Key::Code::Backspace},
                                                               {Qt::Key_Delete, Key::Code::Delete}}};

// With Ctrl an event has a control character for text, or none: the key tells the letter.
QString characterOf(const QKeyEvent& event) {
  if (const QString text = event.text(); !text.isEmpty() && text.at(0).isPrint()) return text;
  return event.key() > Qt::Key_Space && event.key() < Qt::Key_Escape ? QString(QChar(event.key())).toLower()
                                                                     : QString();
}

// The focus is the user's, and stays the control's, while a list, a menu or another program is in front.
bool passing(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
}

// Enter presses the button with the focus as Space does; check boxes and option buttons have Space alone.
bool pressByEnter(QWidget& widget, const QKeyEvent& event) {
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (!enter || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  if (qobject_cast<QPushButton*>(&widget) == nullptr && qobject_cast<QToolButton*>(&widget) == nullptr) return false;
  if (!event.isAutoRepeat()) static_cast<QAbstractButton&>(widget).click();
  return true;
}

// Across windows too: the open list of a combo is one.
bool belongsTo(const QObject* part, const QWidget& whole) {
  while (part != nullptr && part != &whole) part = part->parent();
  return part != nullptr;
}

}  // namespace

Key keyFrom(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers();
  Key key{.control = held.testFlag(Qt::ControlModifier),
          .alt = held.testFlag(Qt::AltModifier),
          .shift = held.testFlag(Qt::ShiftModifier)};
  for (const auto& [code, meaning] : kCodes) {
    if (event.key() != code) continue;
    key.code = meaning;
    return key;
  }
  key.text = characterOf(event).toStdString();
  if (key.text.empty()) key.code = Key::Code::Other;
  return key;
}

UserEvents::UserEvents(QWidget& widget, Control& control)
    : QObject(&widget),
      m_widget(widget),
      m_kind(widget.metaObject()),
      m_control(control),
      m_edit(qobject_cast<QLineEdit*>(&widget)) {
  widget.installEventFilter(this);
  // The focus of a tab widget is its bar's, that of a calendar its view's.
  QWidget* last = &widget;
  while (last->focusProxy() != nullptr) last = last->focusProxy();
  if (last != &widget) last->installEventFilter(this);
  m_focused = last;
  if (const auto* const list = qobject_cast<QComboBox*>(&widget); list != nullptr && list->isEditable()) {
    m_edit = list->lineEdit();
    m_edit->installEventFilter(this);
  }
}

bool UserEvents::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
      if (watched == m_focused) focusIn(static_cast<const QFocusEvent&>(*event));
      break;
    case QEvent::FocusOut:
      if (watched == m_focused) focusOut(static_cast<const QFocusEvent&>(*event));
      break;
    case QEvent::KeyPress:
      if (watched != m_focused) break;
      if (m_control.offerKey(keyFrom(static_cast<const QKeyEvent&>(*event)))) return true;
      if (pressByEnter(m_widget, static_cast<const QKeyEvent&>(*event))) return true;
      break;
    case QEvent::ShortcutOverride: {
      // A box takes Ctrl+Z for itself before any shortcut.
      const auto& key = static_cast<const QKeyEvent&>(*event);
      const bool undoes = key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
      if (m_edit == nullptr || !undoes || m_control.form().actListener() == nullptr || takesBackItsTyping(key)) break;
      event->ignore();
      return true;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (mousePress(watched, event->type())) return true;
      break;
    case QEvent::MouseButtonRelease:
      mouseRelease(watched);
      break;
    case QEvent::Wheel:
      // Who scrolls the page changes no value under the mouse: the wheel is the page's.
      if (!m_widget.hasFocus() &&
          (qobject_cast<QComboBox*>(&m_widget) != nullptr || qobject_cast<QScrollBar*>(&m_widget) != nullptr)) {
        event->ignore();
        return true;
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

void UserEvents::focusIn(const QFocusEvent& event) {
  m_control.entered();
  m_clickedIn = event.reason() == Qt::MouseFocusReason && m_edit != nullptr;
  // Qt does so for the keyboard alone. A click selects when it ends, one on the arrow when the list is closed again.
  const bool selects = std::exchange(m_listOpened, false) || !passing(event.reason());
  if (m_edit != nullptr && m_edit != &m_widget && !m_clickedIn && selects) m_edit->selectAll();
  if (const auto* const text = dynamic_cast<const Text*>(&m_control)) {
    m_start = text->selectionStart();
    m_length = text->selectionLength();
  }
}

void UserEvents::focusOut(const QFocusEvent& event) {
  m_clickedIn = false;
  // The editor of a cell, the buttons of a calendar, an open list are parts of the widget. One that is being destroyed,
  // and is no more than a plain widget, runs no operation.
  if (passing(event.reason()) || m_widget.metaObject() != m_kind || belongsTo(QApplication::focusWidget(), m_widget))
    return;
  m_control.left();
}

// Where the form takes whole operations back, a box takes its own text back only while the user is typing in it.
bool UserEvents::takesBackItsTyping(const QKeyEvent& event) const {
  if (!m_control.form().actListener()->typingIn(m_control)) return false;
  return event.matches(QKeySequence::Undo) ? m_edit->isUndoAvailable() : m_edit->isRedoAvailable();
}

bool UserEvents::mousePress(const QObject* watched, QEvent::Type type) {
  if (watched != &m_widget) return false;
  if (type == QEvent::MouseButtonDblClick && m_control.hasDoubleClick()) {
    m_control.doubleClick();
    return true;
  }
  if (m_clickedIn && m_edit != &m_widget) {  // the arrow of a list, not its text
    m_clickedIn = false;
    m_listOpened = true;
  }
  return false;
}

void UserEvents::mouseRelease(const QObject* watched) {
  if (watched != m_edit || !std::exchange(m_clickedIn, false) || m_edit->hasSelectedText()) return;
  if (auto* const text = dynamic_cast<Text*>(&m_control))
    text->select(m_start, m_length);
  else
    m_edit->selectAll();
}

}  // namespace trv5
