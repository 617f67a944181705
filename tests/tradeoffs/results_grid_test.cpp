#include "tradeoffs/ui/grid_column_widths.h"
#include "tradeoffs/ui/item_text_delegate.h"
#include "tradeoffs/ui/tradeoffs_results_widget.h"

// Qt
#include <QApplication>
#include <QHeaderView>
#include <QRandomGenerator>
#include <QScreen>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

// Std
#include <memory>
#include <string>
#include <vector>

namespace tnw::tradeoffs {

namespace {

// A grid set up as the results page sets its grids up.
std::unique_ptr<QTableWidget> makeGrid(const QStringList& headings, const QFont& font,
                                       bool showGrid) {
  auto grid = std::make_unique<QTableWidget>(0, static_cast<int>(headings.size()));
  grid->setFont(font);
  grid->setItemDelegate(new ItemTextDelegate(grid.get(), true));
  grid->setShowGrid(showGrid);
  grid->setHorizontalHeaderLabels(headings);
  grid->verticalHeader()->setVisible(false);
  grid->setAlternatingRowColors(true);
  grid->setWordWrap(false);
  grid->setTextElideMode(Qt::ElideRight);
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  grid->horizontalHeader()->setMinimumSectionSize(10);
  grid->resize(420, 260);
  return grid;
}

// A number as the grids show them, in one of several forms.
QString randomNumber(QRandomGenerator& random) {
  const double value = (random.generateDouble() - 0.3) * std::pow(10.0, random.bounded(6) - 2);
  switch (random.bounded(5)) {
    case 0:
      return QString::number(value, 'f', 4);
    case 1:
      return QLocale(QLocale::English).toString(value, 'f', random.bounded(5));
    case 2:
      return QString::number(random.bounded(1000)) + QLatin1Char('%');
    case 3:
      return QLatin1Char('+') + QString::number(std::abs(value), 'f', 2);
    default:
      return QString::number(random.bounded(100000000));
  }
}

void fill(QTableWidget& grid, const std::vector<QStringList>& rows) {
  grid.setRowCount(static_cast<int>(rows.size()));
  for (int r = 0; r < grid.rowCount(); ++r) {
    for (int c = 0; c < grid.columnCount(); ++c) {
      auto* item = new QTableWidgetItem(rows[static_cast<std::size_t>(r)][c]);
      item->setTextAlignment(c == 0 ? (Qt::AlignLeft | Qt::AlignVCenter)
                                    : (Qt::AlignRight | Qt::AlignVCenter));
      grid.setItem(r, c, item);
    }
  }
}

}  // namespace

class ResultsGridTest : public QObject {
  Q_OBJECT

 private slots:
  // Columns of numbers, in several fonts, shown and not, with the grid's own lines or not, get
  // the widths resizeColumnToContents gives them; so do columns with other texts.
  void widthsAreResizeColumnToContents() {
    QRandomGenerator random(20261124);
    const QFont base = QApplication::font();
    std::vector<QFont> fonts = {base};
    for (const double points : {6.5, 8.0, 11.0, 14.0}) {
      QFont f = base;
      f.setPointSizeF(points);
      fonts.push_back(f);
    }
    QFont bold = base;
    bold.setBold(true);
    fonts.push_back(bold);
    // Slanted faces, whose last glyph may reach past its advance, and other widths of digits.
    for (const char* family : {"DejaVu Serif", "DejaVu Sans", "DejaVu Sans Mono"}) {
      for (const double points : {7.0, 10.0, 12.5}) {
        QFont f(QString::fromLatin1(family));
        f.setPointSizeF(points);
        f.setItalic(points != 10.0);
        fonts.push_back(f);
      }
    }
    QFont condensed(QStringLiteral("DejaVu Sans"), 9);
    condensed.setStretch(QFont::Condensed);
    fonts.push_back(condensed);
    const QStringList headings = {QStringLiteral("Attributes"), QStringLiteral("Weights"),
                                  QStringLiteral("Est.High"), QStringLiteral("W")};
    int compared = 0;
    for (const QFont& font : fonts) {
      for (const bool shown : {false, true}) {
        for (int round = 0; round < 6; ++round) {
          const bool showGrid = round % 2 == 1;
          std::vector<QStringList> rows;
          const int count = round == 0 ? 0 : 1 + static_cast<int>(random.bounded(40));
          for (int r = 0; r < count; ++r) {
            QStringList row = {QStringLiteral("Attribute %1").arg(r), randomNumber(random),
                               randomNumber(random), randomNumber(random)};
            // Now and then a text that is not a number.
            if (round == 5 && r == count / 2) row[2] = QStringLiteral("n/a (1.5)");
            rows.push_back(row);
          }
          auto ours = makeGrid(headings, font, showGrid);
          auto qts = makeGrid(headings, font, showGrid);
          fill(*ours, rows);
          fill(*qts, rows);
          if (shown) {
            ours->show();
            qts->show();
            QApplication::processEvents();
          }
          for (int c = 0; c < ours->columnCount(); ++c) {
            GridColumnWidths::fit(*ours, c);
            qts->resizeColumnToContents(c);
            QCOMPARE(ours->columnWidth(c), qts->columnWidth(c));
            ++compared;
          }
        }
      }
    }
    QVERIFY(compared >= 768);
  }

  // Each number column of a results grid asks the style for one cell's size, the widest's: the
  // grid of 31 attributes changes all its numbers on every fit.
  void aResultsGridMeasuresOneCellPerNumberColumn() {
    auto grid = makeGrid({QStringLiteral("Attributes"), QStringLiteral("Weights"),
                          QStringLiteral("Est.High"), QStringLiteral("Est.Low")},
                         QApplication::font(), false);
    grid->show();
    QApplication::processEvents();
    const auto& delegate = *static_cast<ItemTextDelegate*>(grid->itemDelegate());
    wizard::GridState state;
    state.cells.push_back({"Attributes", "Weights", "Est.High", "Est.Low"});
    for (int a = 0; a < 31; ++a) {
      const auto number = [a](int k) { return "0." + std::to_string(1000 + 31 * a + k); };
      state.cells.push_back(
          {"Attribute " + std::to_string(a + 1), number(0), number(1), number(2)});
    }
    const int leftBefore = GridColumnWidths::leftToQt();
    const int before = delegate.measured();
    QVERIFY(TradeOffsResultsWidget::renderGrid(*grid, state));
    QVERIFY(delegate.measured() - before <= 3);
    QCOMPARE(GridColumnWidths::leftToQt(), leftBefore);
    // The widths are those the columns' contents ask for.
    auto check = makeGrid({QStringLiteral("Attributes"), QStringLiteral("Weights"),
                           QStringLiteral("Est.High"), QStringLiteral("Est.Low")},
                          QApplication::font(), false);
    check->show();
    TradeOffsResultsWidget::renderGrid(*check, state);
    for (int c = 1; c < 4; ++c) {
      check->resizeColumnToContents(c);
      QCOMPARE(grid->columnWidth(c), check->columnWidth(c));
    }
  }

  // A results page being hidden does not have its grids lay their headers out again; shown
  // again, a grid lays them out as before.
  void aHiddenResultsPageLaysNoHeaderOut() {
    TradeOffsResultsWidget page;
    page.resize(700, 480);
    page.show();
    QApplication::processEvents();
    QTableWidget* grid = page.controls().gridWeights;
    QHeaderView* header = grid->horizontalHeader();
    const QRect shownHeader = header->geometry();
    const QRect shownViewport = grid->viewport()->geometry();
    QVERIFY(header->height() > 0);
    QSignalSpy layouts(header, &QHeaderView::geometriesChanged);
    page.hide();
    QApplication::processEvents();
    QCOMPARE(layouts.count(), 0);
    page.show();
    QApplication::processEvents();
    QVERIFY(layouts.count() > 0);
    QCOMPARE(header->geometry(), shownHeader);
    QCOMPARE(grid->viewport()->geometry(), shownViewport);
  }

  // New numbers in a shown results grid reach its view as one change, and the screen shows them
  // as it shows a grid filled with them from the start.
  void aResultsGridTellsItsViewOnceOfItsNewNumbers() {
    const QStringList headings = {QStringLiteral("Attributes"), QStringLiteral("Weights"),
                                  QStringLiteral("Est.High")};
    const auto state = [](int shift) {
      wizard::GridState grid;
      grid.cells.push_back({"Attributes", "Weights", "Est.High"});
      for (int a = 0; a < 12; ++a) {
        grid.cells.push_back({"Attribute " + std::to_string(a + 1),
                              "0." + std::to_string(1000 + 17 * a + shift),
                              "0." + std::to_string(2000 + 13 * a + shift)});
      }
      return grid;
    };
    auto grid = makeGrid(headings, QApplication::font(), false);
    auto fresh = makeGrid(headings, QApplication::font(), false);
    TradeOffsResultsWidget::renderGrid(*grid, state(0));
    TradeOffsResultsWidget::renderGrid(*fresh, state(5));
    grid->show();
    fresh->show();
    QApplication::processEvents();
    QSignalSpy changes(grid->model(), &QAbstractItemModel::dataChanged);
    QVERIFY(TradeOffsResultsWidget::renderGrid(*grid, state(5)));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(grid->item(11, 2)->text(), QStringLiteral("0.2148"));
    QApplication::processEvents();
    const auto screen = [](QTableWidget& table) {
      return QApplication::primaryScreen()->grabWindow(table.winId()).toImage();
    };
    QVERIFY(screen(*grid) == screen(*fresh));
    // Nothing changed, nothing is told.
    QVERIFY(!TradeOffsResultsWidget::renderGrid(*grid, state(5)));
    QCOMPARE(changes.count(), 1);
  }
};

}  // namespace tnw::tradeoffs

QTEST_MAIN(tnw::tradeoffs::ResultsGridTest)
#include "results_grid_test.moc"
