// SPDX-License-Identifier: MIT
#include "model/item_prop.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(ItemProp, AFreshItemOwnsAnEmptyPropertySet) {
    EXPECT_EQ(ItemProp().MenuProperty, MenuProp());
}

}  // namespace
}  // namespace zev
