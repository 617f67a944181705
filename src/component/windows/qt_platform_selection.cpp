// The platform the server's own QApplication is made on.

#include "component/windows/qt_platform_selection.h"

// Qt
#include <QList>
#include <QtGlobal>

namespace tnw {

namespace {

#ifdef TNW_QT_DIRECTWRITE_GAPS
constexpr bool kHasDirectWriteFontDatabase = false;
#else
constexpr bool kHasDirectWriteFontDatabase = true;
#endif

// Whether Qt's windows platform would take `param` as asking for the DirectWrite font database
// (as qwindowsintegration.cpp parses it).
bool asksForDirectWrite(const QByteArray& param) {
  return param.startsWith("fontengine=") && param.endsWith("directwrite");
}

}  // namespace

QByteArray QtPlatformSelection::windowsPlatform(const QByteArray& given) {
  QList<QByteArray> parts = given.split(':');
  QByteArray value = "windows";
  for (qsizetype i = 1; i < parts.size(); ++i) {
    if (!kHasDirectWriteFontDatabase && asksForDirectWrite(parts[i])) continue;
    value += ':' + parts[i];
  }
  return value;
}

QtPlatformSelection::QtPlatformSelection()
    : m_wasSet(qEnvironmentVariableIsSet("QT_QPA_PLATFORM")),
      m_previous(qgetenv("QT_QPA_PLATFORM")) {
  qputenv("QT_QPA_PLATFORM", windowsPlatform(m_previous));
}

QtPlatformSelection::~QtPlatformSelection() {
  if (m_wasSet) {
    qputenv("QT_QPA_PLATFORM", m_previous);
  } else {
    qunsetenv("QT_QPA_PLATFORM");
  }
}

}  // namespace tnw
