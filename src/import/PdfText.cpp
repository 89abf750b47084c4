#include "PdfText.h"

#include <QColor>
#include <QFileInfo>
#include <poppler-document.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>

namespace qor::import {

namespace {
QString fromUstring(const poppler::ustring& s)
{
    const poppler::byte_array utf8 = s.to_utf8();
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// poppler reports problems on stderr by default; an import reports its own.
void quietPoppler(const std::string&, void*) {}
} // namespace

PdfText::PdfText() { poppler::set_debug_error_function(quietPoppler, nullptr); }
PdfText::~PdfText() = default;

bool PdfText::open(const QString& path, QString* error)
{
    m_name = QFileInfo(path).fileName();
    if (!QFileInfo(path).isFile()) {
        *error = QStringLiteral("%1: no such file").arg(path);
        return false;
    }
    m_doc.reset(poppler::document::load_from_file(path.toStdString()));
    if (!m_doc || m_doc->is_locked()) {
        m_doc.reset();
        *error = QStringLiteral("%1: not a readable PDF").arg(path);
        return false;
    }
    return true;
}

bool PdfText::openData(const QByteArray& bytes, const QString& name, QString* error)
{
    m_name = name;
    m_data = bytes;
    m_doc.reset(poppler::document::load_from_raw_data(m_data.constData(), static_cast<int>(m_data.size())));
    if (!m_doc || m_doc->is_locked()) {
        m_doc.reset();
        *error = QStringLiteral("%1: not a readable PDF").arg(name);
        return false;
    }
    return true;
}

int PdfText::pageCount() const
{
    return m_doc ? m_doc->pages() : 0;
}

QSizeF PdfText::pageSize(int page) const
{
    if (page < 0 || page >= pageCount())
        return {};
    std::unique_ptr<poppler::page> p(m_doc->create_page(page));
    if (!p)
        return {};
    const poppler::rectf r = p->page_rect(poppler::media_box);
    const bool turned = p->orientation() == poppler::page::landscape || p->orientation() == poppler::page::seascape;
    return turned ? QSizeF(r.height(), r.width()) : QSizeF(r.width(), r.height());
}

std::vector<PdfWord> PdfText::words(int page) const
{
    std::vector<PdfWord> out;
    if (page < 0 || page >= pageCount())
        return out;
    std::unique_ptr<poppler::page> p(m_doc->create_page(page));
    if (!p)
        return out;
    for (const poppler::text_box& box : p->text_list(poppler::page::text_list_include_font)) {
        const poppler::rectf r = box.bbox();
        const bool hasFont = box.has_font_info();
        out.push_back({ fromUstring(box.text()), QRectF(r.x(), r.y(), r.width(), r.height()), box.has_space_after(),
                        box.rotation(), hasFont ? QString::fromStdString(box.get_font_name()) : QString(),
                        hasFont ? box.get_font_size() : 0.0 });
    }
    return out;
}

QImage PdfText::render(int page, double dpi) const
{
    if (page == m_cachedPage && dpi == m_cachedDpi)
        return m_cachedImage;
    if (page < 0 || page >= pageCount())
        return {};
    std::unique_ptr<poppler::page> p(m_doc->create_page(page));
    if (!p)
        return {};
    poppler::page_renderer renderer;
    renderer.set_image_format(poppler::image::format_argb32);
    const poppler::image img = renderer.render_page(p.get(), dpi, dpi);
    if (!img.is_valid())
        return {};
    QImage copy(reinterpret_cast<const uchar*>(img.const_data()), img.width(), img.height(), img.bytes_per_row(),
                QImage::Format_ARGB32);
    m_cachedImage = copy.copy();
    m_cachedPage = page;
    m_cachedDpi = dpi;
    return m_cachedImage;
}

QColor PdfText::colorAt(int page, QPointF point, double dpi) const
{
    const QImage img = render(page, dpi);
    const QPoint px((point * dpi / 72.0).toPoint());
    if (img.isNull() || !img.rect().contains(px))
        return {};
    return img.pixelColor(px);
}

} // namespace qor::import
