// The boxes of QtShell: each has its parent, the given title and text, and the safe answer as default.
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSpacerItem>

#include "screens/kit/grid_print.h"
#include "screens/kit/screen.h"
#include "screens/kit/theme.h"
#include "screens/shell/qt_shell.h"

namespace trv5 {
namespace {

QMessageBox::Icon iconOf(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Exclamation:
      return QMessageBox::Warning;
    case Icon::Critical:
      return QMessageBox::Critical;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

// Room for 60 characters, so that no text is squeezed into a column.
int boxWidth(const QWidget& box) {
  return 60 * box.fontMetrics().averageCharWidth();
}

void prepare(QMessageBox& box, const Box& what) {
  if (box.parentWidget() == nullptr) Theme::edit().dressWindow(box);
  box.setWindowTitle(qs(what.title));
  box.setText(qs(what.text));
  box.setInformativeText(qs(what.reason));
  box.setTextFormat(Qt::PlainText);
  box.setIcon(iconOf(what.icon));
  if (auto* const grid = qobject_cast<QGridLayout*>(box.layout()))
    grid->addItem(new QSpacerItem(boxWidth(box), 0, QSizePolicy::Minimum, QSizePolicy::Expanding), grid->rowCount(), 0,
                  1, grid->columnCount());
}

QString filterOf(const FileBox& box) {
  const QString all = QStringLiteral("Tutti i file (*)");
  return box.filter.empty() ? all
                            : qs(box.filter) + QStringLiteral(" (") + qs(box.filter) + QStringLiteral(");;") + all;
}

void prepare(QFileDialog& dialog, const FileBox& box) {
  dialog.setWindowTitle(qs(box.title));
  // What was saved last may stand for the folder in which it lies.
  const QFileInfo start(qs(box.folder.string()));
  const bool isFile = !start.isDir() && QFileInfo(start.path()).isDir();
  dialog.setDirectory(isFile ? start.path() : start.filePath());
  dialog.setNameFilters(filterOf(box).split(QStringLiteral(";;")));
  const QString name = !box.name.empty() ? qs(box.name) : isFile ? start.fileName() : QString();
  if (!name.isEmpty()) dialog.selectFile(name);
  if (!box.defaultExtension.empty()) dialog.setDefaultSuffix(qs(box.defaultExtension));
}

std::optional<std::filesystem::path> chosen(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return std::filesystem::path(dialog.selectedFiles().first().toStdU16String());
}

}  // namespace

void QtShell::message(const Box& box) {
  QMessageBox shown(front());
  prepare(shown, box);
  shown.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
  shown.exec();
}

bool QtShell::confirm(const Box& box) {
  QMessageBox shown(front());
  prepare(shown, box);
  const QPushButton* const yes = shown.addButton(QStringLiteral("&Sì"), QMessageBox::YesRole);
  QPushButton* const no = shown.addButton(QStringLiteral("&No"), QMessageBox::NoRole);
  shown.setDefaultButton(no);
  shown.setEscapeButton(no);
  shown.exec();
  return shown.clickedButton() == yes;
}

std::optional<std::string> QtShell::input(const InputBox& box) {
  QInputDialog dialog(front());
  dialog.setWindowTitle(qs(box.title));
  dialog.setLabelText(qs(box.text));
  dialog.setTextValue(qs(box.initial));
  dialog.setOkButtonText(QStringLiteral("OK"));
  dialog.setCancelButtonText(QStringLiteral("Annulla"));
  if (auto* const line = dialog.findChild<QLineEdit*>()) {
    line->setPlaceholderText(qs(box.placeholder));
    line->setMinimumWidth(boxWidth(dialog));  // the dialog's own least width is its layout's
  }
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.textValue().toStdString();
}

std::optional<std::filesystem::path> QtShell::chooseOpen(const FileBox& box) {
  QFileDialog dialog(front());
  prepare(dialog, box);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return chosen(dialog);
}

std::optional<std::filesystem::path> QtShell::chooseSave(const FileBox& box) {
  QFileDialog dialog(front());
  prepare(dialog, box);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  return chosen(dialog);
}

PrintSetup QtShell::withHeader(const Grid& grid, PrintSetup setup) const {
  if (!setup.header.empty()) return setup;
  for (const std::unique_ptr<Open>& opened : m_open) {
    const auto* const screen = qobject_cast<const Screen*>(opened->widget.data());
    if (screen == nullptr) continue;
    for (const Control* const control : opened->form->controls())
      if (const auto* const own = dynamic_cast<const GridControl*>(control); own != nullptr && &own->grid() == &grid)
        setup.header = screen->printHeader(*own);
  }
  return setup;
}

void QtShell::print(const Grid& grid, const PrintSetup& asked) {
  const PrintSetup setup = withHeader(grid, asked);
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageLayout(printLayout(setup));
  printer.setDocName(setup.title.empty() ? QStringLiteral("TRV5") : qs(setup.title));
  QPrintPreviewDialog preview(&printer, front());
  preview.setWindowTitle(QStringLiteral("Anteprima di stampa"));
  connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
          [&](QPrinter* target) { printGrid(grid, setup, *target); });
  if (preview.exec() == QDialog::Accepted)
    status("Stampa inviata: " + (setup.title.empty() ? std::string("TRV5") : setup.title));
}

}  // namespace trv5
