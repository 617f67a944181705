#pragma once

// Std
#include <string>

// Qt
#include <QUrl>

class QTextBrowser;

namespace tnw {

// The help pages shipped with the component: one HTML page per dialog, with an anchor per step,
// shown in one non-modal browser window per application.
class HelpBrowser {
 public:
  // The objectName of the browser window.
  static constexpr const char* kObjectName = "helpBrowser";

  // The address of a dialog's page at a step's anchor; the contents page when page is empty.
  static QUrl pageUrl(const std::string& page, const std::string& anchor);
  // Shows the page at the anchor in the application's help window, creating it the first time
  // and raising it afterwards. Returns the window.
  static QTextBrowser* show(const std::string& page, const std::string& anchor);
  // The application's help window, or null while none is open.
  static QTextBrowser* window();
};

}  // namespace tnw
