#include "PageView.h"

namespace qor {

namespace {
PageViewFactory::Creator& creator()
{
    static PageViewFactory::Creator c;
    return c;
}
} // namespace

void PageViewFactory::setCreator(Creator c)
{
    creator() = std::move(c);
}

bool PageViewFactory::isAvailable()
{
    return bool(creator());
}

PageView* PageViewFactory::create()
{
    if (creator())
        return creator()();
    return new NullPageView();
}

} // namespace qor
