#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>

#include "core/controls.h"

class QFocusEvent;
class QKeyEvent;
class QLineEdit;
class QWidget;

namespace trv5 {

/// The key of a Qt event.
Key keyFrom(const QKeyEvent& event);

/// What the user does with a widget beside changing its value, told to its control before the widget acts on it: the
/// focus that comes and goes, keys, a double click. Lives as long as the widget, as its child.
class UserEvents : public QObject {
 public:
  UserEvents(QWidget& widget, Control& control);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void focusIn(const QFocusEvent& event);
  void focusOut(const QFocusEvent& event);
  bool mousePress(const QObject* watched, QEvent::Type type);
  void mouseRelease(const QObject* watched);
  bool takesBackItsTyping(const QKeyEvent& event) const;

  QWidget& m_widget;
  const QMetaObject* m_kind;  // what the widget is while it is whole
  Control& m_control;
  const QObject* m_focused = nullptr;  // the part of it that has its focus; keys that a part ignores come by again
  QPointer<QLineEdit> m_edit;          // where the widget is written in
  // The click that brought the focus isn't over: what was selected on entering is to stay so.
  bool m_clickedIn = false;
  bool m_listOpened = false;  // by the click that brought the focus
  int m_start = 0, m_length = 0;
};

}  // namespace trv5
