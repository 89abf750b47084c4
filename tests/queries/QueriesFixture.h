#pragma once
// A fixture pack whose databases each test fills before the model opens them.
#include "FixturePack.h"

#include "model/QORModel.h"

#include <gtest/gtest.h>
#include <optional>

namespace qor::test {

struct QueriesTest : ::testing::Test {
    FixturePack pack;
    std::optional<ModelFixture> fixture;

    // Opens the databases on first use, so fill them before calling this.
    QORModel& model()
    {
        if (!fixture)
            fixture.emplace(false);
        return *QORModel::sharedInstance(false);
    }
    static Material material(const QString& unId, const QString& name, const QString& placardId = QString())
    {
        Material m;
        std::tie(m.unId, m.name, m.placardId) = std::tie(unId, name, placardId);
        return m;
    }
};

} // namespace qor::test
