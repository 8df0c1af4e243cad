#pragma once

#include <QIcon>
#include <QLabel>

namespace trv5 {

/// A quiet word about how a result stands, behind a clock; nothing while its text is empty. The place of `widest` is
/// always reserved, so that nothing moves when it comes. Without room for the word the clock stands alone.
class StateMark : public QLabel {
  Q_OBJECT
 public:
  explicit StateMark(const QString& widest, QWidget* parent = nullptr);
  /// Takes what its row leaves, at its right end, and asks for the clock's room alone.
  void takeRest();
  /// With the word.
  int wholeWidth() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static int iconSize();

  QString m_widest;
  bool m_rest = false;
  QIcon m_clock;
};

/// A small quiet text of one line that gives up its beginning where there is no room, or its end.
class SmallNote : public QLabel {
  Q_OBJECT
 public:
  SmallNote(Qt::TextElideMode gives, Qt::Alignment at, QWidget* parent = nullptr);
  /// Takes what room there is, and asks for none.
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Qt::TextElideMode m_gives;
};

/// A mark at the right end, and before it a note that has its place too while the mark is away.
class NoteAndMark : public QWidget {
  Q_OBJECT
 public:
  NoteAndMark(SmallNote* note, StateMark* mark, QWidget* parent = nullptr);
  /// Asks for the room of the whole mark and takes no more.
  void keepPlace();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override;

 private:
  SmallNote* m_note;
  StateMark* m_mark;
  bool m_keepsPlace = false;
};

}  // namespace trv5
