#include "PageView.h"

#include <QList>

namespace qor {

namespace {
PageViewFactory::Creator& creator()
{
    static PageViewFactory::Creator c;
    return c;
}

QList<PageView*>& pool()
{
    static QList<PageView*> views;
    return views;
}

void fillPool()
{
    while (pool().size() < PageViewPool::kSize) {
        PageView* v = PageViewFactory::create();
        v->warmUp();
        pool().append(v);
    }
}
} // namespace

void PageViewFactory::setCreator(Creator c)
{
    // Pooled views were made by the old creator.
    PageViewPool::clear();
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

PageView* PageViewPool::take()
{
    fillPool();
    PageView* v = pool().takeFirst();
    fillPool();
    return v;
}

int PageViewPool::count()
{
    return int(pool().size());
}

void PageViewPool::clear()
{
    qDeleteAll(pool());
    pool().clear();
}

} // namespace qor
