#pragma once
// Fonts of the guide and list screens, made once on first use.
#include <QFont>

namespace qor {

class FontCache {
public:
    static const FontCache& sharedInstance();

    QFont helvetica14;
    QFont boldSystem11;
    QFont boldSystem18;
    // Bold 20 points: the name is older than the size and screens rely on both.
    QFont boldSystem19;
    QFont footerFont;

private:
    FontCache();
};

} // namespace qor
