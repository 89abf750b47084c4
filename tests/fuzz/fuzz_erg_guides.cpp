// The orange-guide reader on damaged guidebook pages: it reads them or says
// why, naming the file; it never crashes. Input: the bytes of a PDF.
#include "FuzzSupport.h"

#include "import/ErgGuides.h"
#include "import/PdfText.h"

#include <cstdlib>

using namespace qor;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    import::PdfText pdf;
    QString error;
    if (!pdf.openData(fuzz::bytes(data, size), QStringLiteral("fuzz.pdf"), &error))
        return 0;
    import::ErgGuides guides;
    if (import::readGuides(pdf, &guides, &error)) {
        for (const import::ErgGuide& g : guides.guides)
            (void)import::guideBodyHtml(g);
        (void)import::guidesCsv(guides);
        (void)import::introductionBodyHtml(guides.introduction);
    } else if (!error.startsWith(QLatin1String("fuzz.pdf: "))) {
        std::abort();  // an error must name the file
    }
    std::vector<import::GuideBlock> intro;
    if (!import::readGuideIntroduction(pdf, &intro, &error) && !error.startsWith(QLatin1String("fuzz.pdf: ")))
        std::abort();
    return 0;
}
