#pragma once
// A test on a fixture pack: fill `pack`, then load() makes the shared model
// over it (again, after the pack has changed).
#include "FixturePack.h"

#include "model/QORModel.h"

#include <gtest/gtest.h>
#include <memory>

namespace qor::test {

struct PackTest : ::testing::Test {
    FixturePack pack;
    std::unique_ptr<ModelFixture> fixture;
    QORModel* model = nullptr;
    void load()
    {
        fixture.reset();  // its end deletes the shared model: before the next one
        fixture = std::make_unique<ModelFixture>();
        model = QORModel::sharedInstance();
    }
};

} // namespace qor::test
