// Not a test: makes the README's picture of the direct method's results step with its export
// buttons. It runs the direct method on a small car-purchase model through the real widgets and
// saves the dialog on its results step.

#include "direct_results_fixture.h"

// Qt
#include <QDir>

// Std
#include <cstdio>

namespace tnw::direct {
namespace {

int run(const QDir& dir) {
  WizardContext context = test::makeContext(5);
  context.PathAndFileName = "family_car.nrx";
  const char* names[5] = {"Price", "Safety rating", "Fuel use", "Boot space", "Comfort"};
  for (std::size_t i = 0; i < 5; ++i) context.model.AttName[i] = names[i];
  test::DirectResultsFixture f;
  if (!f.open(context)) {
    std::fputs("direct_screenshots: the results step was not reached\n", stderr);
    return 1;
  }
  f.m_dialog->resize(QSize(900, 640));
  f.button("cmdCopy")->setFocus(Qt::TabFocusReason);
  QApplication::processEvents();
  const QString path = dir.filePath(QStringLiteral("direct-results-exports.png"));
  const bool ok = f.m_dialog->grab().save(path);
  std::printf("%s %s\n", ok ? "wrote" : "could not write", qPrintable(path));
  f.close();
  return ok ? 0 : 1;
}

}  // namespace
}  // namespace tnw::direct

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  if (argc != 2) {
    std::fputs("usage: direct_screenshots OUTPUT_DIR\n", stderr);
    return 1;
  }
  return tnw::direct::run(QDir(QString::fromLocal8Bit(argv[1])));
}
