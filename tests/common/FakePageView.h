#pragma once
// A page view for tests: records loads and scripts; finish() simulates the
// web engine reporting the end of a load.
#include "pages/PageView.h"

#include <QList>

namespace qor::test {

class FakePageView : public NullPageView {
    Q_OBJECT
public:
    using NullPageView::NullPageView;
    void finish(bool ok = true) { emit loadFinished(ok); }
};

// Installs a creator of FakePageViews that remembers every view it made.
class FakePageViews {
public:
    FakePageViews()
    {
        PageViewFactory::setCreator([this] {
            auto* v = new FakePageView();
            made.append(v);
            return v;
        });
    }
    ~FakePageViews() { PageViewFactory::setCreator({}); }
    QList<FakePageView*> made;
};

} // namespace qor::test
