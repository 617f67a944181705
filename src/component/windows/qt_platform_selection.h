#pragma once

// Qt
#include <QByteArray>

namespace tnw {

// While alive, QT_QPA_PLATFORM names Qt's windows platform, the only one the server carries, so
// that a host whose environment names another (offscreen, xcb, ...) does not make Qt abort the
// process when the server makes its QApplication. The platform parameters given are kept, except
// "fontengine=directwrite" where the Qt has no DirectWrite font database
// (TNW_QT_DIRECTWRITE_GAPS, see qt_directwrite_gaps.cpp). The host's value comes back on
// destruction.
class QtPlatformSelection {
 public:
  // Sets QT_QPA_PLATFORM to the windows platform with the host's parameters.
  QtPlatformSelection();
  // Restores the host's QT_QPA_PLATFORM, or its absence.
  ~QtPlatformSelection();
  QtPlatformSelection(const QtPlatformSelection&) = delete;
  QtPlatformSelection& operator=(const QtPlatformSelection&) = delete;

  // The value set for a host's value `given` ("name:param:param"; empty when unset).
  static QByteArray windowsPlatform(const QByteArray& given);

 private:
  bool m_wasSet = false;
  QByteArray m_previous;
};

}  // namespace tnw
