#pragma once
// "image://pdf/NAME?w=33&h=33" for the screens: icons, placards and
// pictograms drawn from the pack's PDFs through the on-disk image cache.
// Query keys: w, h (points), s (scale, the screen's by default), page, fit=1.
#include <QQuickImageProvider>

namespace qor {

class PdfImageProvider : public QQuickImageProvider {
public:
    static constexpr const char* kProviderId = "pdf";

    PdfImageProvider();
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

} // namespace qor
