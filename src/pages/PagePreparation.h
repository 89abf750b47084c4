#pragma once
// Rewrites an HTML page before it is shown: the user's text size goes into
// the body tag, the dark style sheet replaces the light one (guide pages
// only) and tablets get a fixed viewport width.
#include <QByteArray>
#include <QString>

namespace qor {

struct PageOptions {
    int textSize = 100;   // percent
    bool dark = false;    // swap "base.css" for "dark.css"
    bool tablet = false;  // fixed 500-wide viewport
};

// The "textFontSize" user setting as an integer, 100 when unset.
int storedTextFontSize();
// Options from the user's settings and the device; dark only where asked.
PageOptions currentPageOptions(bool dark);

QString preparePageText(QString html, const PageOptions& options);
// Reads the file as UTF-8 and prepares it; a missing file gives no bytes.
QByteArray preparePageFile(const QString& path, const PageOptions& options);

// Scripts that change the text size of a page already on screen (percent).
QString guideTextSizeScript(double percent);
QString infoTextSizeScript(double percent);

} // namespace qor
