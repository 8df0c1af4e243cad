#include "screens/INIZIO.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "core/program.h"
#include "screens/kit/icons.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

// A line never ends inside the arrow: word joiners stand between its hyphens.
QString withWholeArrow(QString text) {
  return text.replace(QStringLiteral("--"), QStringLiteral("-\u2060-\u2060"))
      .replace(QStringLiteral("->"), QStringLiteral("-\u2060>"));
}

QBoxLayout* headOf() {
  auto* const mark = new IconLabel(programMark(), 92);
  auto* const name = new QLabel(QStringLiteral("TRV5 Nerovia Forge V2"));
  QFont font = Theme::current().title();
  font.setPointSizeF(20);
  name->setFont(font);
  const QString version = QString::fromUtf8(programVersion().data(), qsizetype(programVersion().size()));
  QBoxLayout* const words =
      column({Piece::gap(), name, Kit::text(QStringLiteral("Versione ") + version, Type::Hint), Piece::gap()});
  words->setSpacing(0);
  return row({mark, Piece::space(), words, Piece::gap()});
}

// The archive of the moment, and the choice of another.
QWidget* archivePanel(Kit& kit, QPushButton* choose) {
  auto* const panel = new Panel;
  auto* const archive = new IconLabel(icon(QStringLiteral("archive")), 24);
  QLabel* const caption = kit.label("Label5", Type::Hint);
  QLabel* const note = kit.label("Label1", Type::Hint);
  note->setWordWrap(true);
  note->setText(withWholeArrow(note->text()));
  auto* const lines = new QGridLayout;
  lines->addWidget(archive, 0, 0);
  lines->addWidget(caption, 0, 1);
  ElidedLabel* const path = kit.path("Lbl_Archivio");
  path->setAccessibleName(QStringLiteral("Percorso archivio"));
  lines->addWidget(path, 0, 2, 1, 2);
  lines->addWidget(note, 1, 1, 1, 2);
  lines->addWidget(choose, 1, 3);
  lines->setColumnStretch(2, 1);
  lines->setVerticalSpacing(2 * Theme::current().unit());
  lines->setHorizontalSpacing(12);
  const int inner = Theme::current().unit();
  lines->setContentsMargins(inner, inner, inner, inner);
  panel->body()->addLayout(lines);
  return panel;
}

}  // namespace

InizioScreen::InizioScreen(Inizio& form) : Screen(form) {
  Theme::edit().dressWindow(*this);

  QPushButton* const choose = kit.button("Command4", {.icon = "folder", .mnemonic = 'A'});
  QPushButton* const proceed =
      kit.button("Command2", {.kind = ButtonKind::Primary, .icon = "play", .mnemonic = 'P', .tall = true});
  QPushButton* const end = kit.button("Command3", {.icon = "power", .mnemonic = 'F', .tall = true});
  QPushButton* const help = kit.button("CmDHelp", {.icon = "help", .mnemonic = 'H', .tall = true});
  proceed->setDefault(true);
  proceed->setMinimumWidth(144);
  QBoxLayout* const buttons = row({help, Piece::gap(), end, proceed});

  auto* const layout = new QVBoxLayout(this);
  const int margin = 4 * Theme::current().unit();
  layout->setContentsMargins(margin, margin - 4, margin, 20);
  layout->addLayout(headOf());
  layout->addSpacing(14);
  layout->addWidget(archivePanel(kit, choose));
  layout->addStretch();
  QProgressBar* const load = kit.progress("pb1");
  load->setAccessibleName(QStringLiteral("Avanzamento"));
  layout->addWidget(load);
  layout->addSpacing(14);
  layout->addLayout(buttons);
  setFixedHeight(400);
  setMinimumWidth(700);

  auto* const f1 = new QShortcut(QKeySequence(Qt::Key_F1), this);
  connect(f1, &QShortcut::activated, help, &QPushButton::click);
  // After a choice Enter goes on.
  connect(choose, &QPushButton::clicked, proceed, [proceed] { proceed->setFocus(Qt::OtherFocusReason); });
  proceed->setFocus();
}

// Enter starts wherever the focus is, but on a button it presses that one; Esc does nothing.
void InizioScreen::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    auto* const focused = qobject_cast<QPushButton*>(focusWidget());
    (focused != nullptr ? focused : findChild<QPushButton*>(QStringLiteral("Command2")))->click();
  } else if (event->key() != Qt::Key_Escape) {
    Screen::keyPressEvent(event);
  }
}

// The cross of the window is FINE; the program then ends by itself.
void InizioScreen::closeEvent(QCloseEvent* event) {
  event->ignore();
  form().get<Button>("Command3").press();
}

}  // namespace trv5
