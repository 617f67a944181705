// Two definitions a static Qt for Windows built with DirectWrite but without Direct2D lacks.
//
// Qt 6.4's QtGui compiles QWindowsFontEngineDirectWrite and QWindowsDirectWriteFontDatabase only
// when both the directwrite and the direct2d features are on (src/gui/CMakeLists.txt), while the
// Windows print engine of QtPrintSupport (qprintengine_win.cpp) and the windows platform plugin
// (qwindowsintegration.cpp) test directwrite alone before they use them. The Qt that
// scripts/build-qt-windows makes has direct2d off, so a static link of both modules leaves
// QWindowsFontEngineDirectWrite::createHFONT() and the DirectWrite font database's constructor
// unresolved. CMake adds this file only to such a build (TNW_QT_DIRECTWRITE_GAPS).
//
// In that Qt no DirectWrite font engine is ever made: the only code that makes one,
// QWindowsFontDatabase::createEngine's DirectWrite branch and the DirectWrite font database, is not
// compiled in. createHFONT() is therefore never called; it is defined as Qt defines it all the
// same. The DirectWrite font database is made only for the platform parameter
// "fontengine=directwrite", which the server removes from QT_QPA_PLATFORM before it makes its
// QApplication (qt_platform_selection.cpp); should a host's own QApplication ask for it, the
// constructor below gives a font database with QWindowsFontDatabaseBase's behaviour and no fonts
// of its own instead of an unresolved symbol.

// Qt
#include <QtGui/private/qwindowsdirectwritefontdatabase_p.h>
#include <QtGui/private/qwindowsfontdatabasebase_p.h>
#include <QtGui/private/qwindowsfontenginedirectwrite_p.h>

// Windows
#include <dwrite.h>
#include <windows.h>

// Std
#include <new>

QT_BEGIN_NAMESPACE

// As in Qt's qwindowsfontenginedirectwrite.cpp: a GDI font for the engine's DirectWrite face.
HFONT QWindowsFontEngineDirectWrite::createHFONT() const {
  if (m_fontEngineData == nullptr || m_directWriteFontFace == nullptr) return nullptr;
  LOGFONT lf;
  const HRESULT hr =
      m_fontEngineData->directWriteGdiInterop->ConvertFontFaceToLOGFONT(m_directWriteFontFace, &lf);
  if (!SUCCEEDED(hr)) return nullptr;
  lf.lfHeight = -qRound(fontDef.pixelSize);
  return CreateFontIndirect(&lf);
}

QT_END_NAMESPACE

namespace {

// What `new QWindowsDirectWriteFontDatabase` makes in this Qt: QWindowsFontDatabaseBase as it is.
class NoDirectWriteFontDatabase final : public QWindowsFontDatabaseBase {};

static_assert(sizeof(NoDirectWriteFontDatabase) <= sizeof(QWindowsDirectWriteFontDatabase));
static_assert(alignof(NoDirectWriteFontDatabase) <= alignof(QWindowsDirectWriteFontDatabase));

}  // namespace

// QWindowsDirectWriteFontDatabase's complete-object constructor, called on the storage `new`
// allocated for it (this is passed as a member function's, in rcx on x64, in ecx on x86).
#if defined(__x86_64__)
void constructNoDirectWriteFontDatabase(void* storage) __asm__(
    "_ZN31QWindowsDirectWriteFontDatabaseC1Ev");
#else
// GCC applies thiscall to a free function too, as it documents, but warns that it is meant for
// member functions; here it is exactly what makes this function callable as one.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wattributes"
__attribute__((thiscall)) void constructNoDirectWriteFontDatabase(void* storage) __asm__(
    "__ZN31QWindowsDirectWriteFontDatabaseC1Ev");
#endif

#if defined(__x86_64__)
void constructNoDirectWriteFontDatabase(void* storage) {
#else
__attribute__((thiscall)) void constructNoDirectWriteFontDatabase(void* storage) {
#endif
  ::new (storage) NoDirectWriteFontDatabase();
}
#if !defined(__x86_64__)
#pragma GCC diagnostic pop
#endif
