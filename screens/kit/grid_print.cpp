#include "screens/kit/grid_print.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include "core/file_writer.h"
#include "core/grid_text.h"
#include "core/paginator.h"
#include "screens/kit/grid_delegate.h"
#include "screens/kit/ink.h"
#include "screens/kit/theme.h"

namespace trv5 {
namespace {

constexpr double kPoints = 9;

// The table in points; the painter is scaled from points to the device.
class Sheet {
 public:
  Sheet(const Grid& grid, const PrintSetup& setup, QPainter& painter, double unitsPerPoint)
      : m_grid(grid), m_setup(setup), m_painter(painter), m_unit(unitsPerPoint) {
    m_font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans")});
    // A pixel of the font is one unit of the scaled painter, a point.
    m_font.setPixelSize(int(kPoints));
    m_bold = m_font;
    m_bold.setWeight(QFont::DemiBold);
    m_columns = visibleColumns(grid);
    for (const int row : visibleRows(grid))
      if (row >= grid.headingRows()) m_rows.push_back(row);
  }

  int print(QPagedPaintDevice& device, double width, double height) {
    layOutTitle(width);
    const QFontMetricsF metrics(m_font);
    PageRequest request{.columnWidths = {},
                        .rows = static_cast<int>(m_rows.size()),
                        .rowHeight = metrics.height() + 3,
                        .headingHeight = m_grid.headingHasText() ? metrics.height() + 5 : 0,
                        .titleHeight = m_title.empty() ? 0 : static_cast<double>(m_title.size()) * metrics.height() + 8,
                        .pageWidth = width,
                        // The foot holds the number of the page.
                        .pageHeight = height - metrics.height() - 4};
    for (const int column : m_columns) request.columnWidths.push_back(widthOf(column));
    const Pages pages = paginate(request);
    m_scale = pages.scale;
    for (std::size_t i = 0; i < pages.pages.size(); ++i) {
      if (i > 0) device.newPage();
      m_painter.save();
      m_painter.scale(m_unit, m_unit);
      m_painter.setFont(m_font);
      m_painter.setPen(toColor(kInk));
      m_painter.drawText(QRectF(0, height - metrics.height(), width, metrics.height()), Qt::AlignRight,
                         QStringLiteral("%1 / %2").arg(i + 1).arg(pages.pages.size()));
      m_painter.scale(pages.scale, pages.scale);
      paint(pages.pages[i], request);
      m_painter.restore();
    }
    return static_cast<int>(pages.pages.size());
  }

 private:
  struct TitleLine {
    QString text;
    bool bold;
  };

  // The title and the lines below it, none cut short: what doesn't fit on the paper goes on in the next line, indented.
  void layOutTitle(double width) {
    if (!m_setup.title.empty()) addTitle(qs(m_setup.title), true, width);
    for (std::size_t i = 0; i < m_setup.header.size(); ++i) addTitle(qs(m_setup.header[i]), i == 0, width);
  }

  void addTitle(const QString& text, bool bold, double width) {
    const QFontMetricsF metrics(bold ? m_bold : m_font);
    QString line;
    for (const QString& word : text.split(u' ')) {
      const QString longer = line.isEmpty() ? word : line + u' ' + word;
      if (line.isEmpty() || metrics.horizontalAdvance(longer) <= width) {
        line = longer;
        continue;
      }
      m_title.push_back({line, bold});
      line = QStringLiteral("    ") + word;
    }
    m_title.push_back({line, bold});
  }

  void paintTitle(double width, double height) {
    m_painter.setPen(toColor(kInk));
    double y = 0;
    for (const TitleLine& line : m_title) {
      m_painter.setFont(line.bold ? m_bold : m_font);
      m_painter.drawText(QRectF(0, y, width, height), Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, line.text);
      y += QFontMetricsF(m_font).height();
    }
  }

  double widthOf(int column) const {
    const QFontMetricsF bold(m_bold);
    double width = bold.horizontalAdvance(QStringLiteral("88"));
    for (int row = 0; row < m_grid.rows(); ++row)
      if (!m_grid.rowHidden(row))
        width = std::max(width, bold.horizontalAdvance(qs(m_grid.text(row, column)).trimmed()));
    return width + 8;
  }

  void paint(const Page& page, const PageRequest& request) {
    double y = 0;
    if (request.titleHeight > 0) {
      paintTitle(request.pageWidth / m_scale, request.titleHeight);
      y += request.titleHeight;
    }
    if (request.headingHeight > 0) {
      paintRow(0, page, y, request.headingHeight, request);
      y += request.headingHeight;
    }
    for (int i = page.firstRow; i < page.endRow; ++i, y += request.rowHeight)
      paintRow(m_rows[static_cast<std::size_t>(i)], page, y, request.rowHeight, request);
  }

  void paintRow(int row, const Page& page, double y, double height, const PageRequest& request) {
    const bool heading = row < m_grid.headingRows();
    double x = 0;
    for (int i = page.firstColumn; i < page.endColumn; ++i) {
      const int column = m_columns[static_cast<std::size_t>(i)];
      const double width = request.columnWidths[static_cast<std::size_t>(i)];
      const Cell& cell = m_grid.at(row, column);
      const QRectF r(x, y, width, height);
      const Rgb back = heading && cell.back == kWhite ? kLightColours.heading : cell.back;
      if (back != kWhite) m_painter.fillRect(r, toColor(back));
      if (const auto bar = m_grid.bars().find({row, column}); bar != m_grid.bars().end())
        m_painter.fillRect(QRectF(x, y + 1, width * std::clamp(bar->second.percent, 0.0, 100.0) / 100, height - 2),
                           toColor(bar->second.colour));
      m_painter.setPen(QPen(toColor(kLightColours.edge), 0.4));
      m_painter.drawRect(r);
      m_painter.setFont(heading || cell.bold ? m_bold : m_font);
      m_painter.setPen(toColor(readableInk(cell.fore, back)));
      m_painter.drawText(r, Qt::AlignCenter | Qt::TextSingleLine, qs(cell.text).trimmed());
      x += width;
    }
  }

  const Grid& m_grid;
  const PrintSetup& m_setup;
  QPainter& m_painter;
  double m_unit, m_scale = 1;
  QFont m_font, m_bold;
  std::vector<int> m_rows, m_columns;
  std::vector<TitleLine> m_title;
};

}  // namespace

QPageLayout printLayout(const PrintSetup& setup) {
  const double horizontal = setup.horizontalMargin / 20.0, vertical = setup.verticalMargin / 20.0;
  return {QPageSize(QPageSize::A4), setup.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
          QMarginsF(horizontal, vertical, horizontal, vertical), QPageLayout::Point};
}

int printGrid(const Grid& grid, const PrintSetup& setup, QPagedPaintDevice& device) {
  QPainter painter(&device);
  const QRectF room = device.pageLayout().paintRect(QPageLayout::Point);
  const double unitsPerPoint = device.logicalDpiX() / 72.0;
  return Sheet(grid, setup, painter, unitsPerPoint).print(device, room.width(), room.height());
}

int printToPdf(const Grid& grid, const PrintSetup& setup, const std::filesystem::path& file) {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  int pages = 0;
  {
    QPdfWriter writer(&bytes);
    writer.setPageLayout(printLayout(setup));
    writer.setTitle(setup.title.empty() ? QStringLiteral("TRV5") : qs(setup.title));
    pages = printGrid(grid, setup, writer);
  }
  writeFile(file, std::string_view(bytes.data().constData(), static_cast<std::size_t>(bytes.data().size())));
  return pages;
}

}  // namespace trv5
