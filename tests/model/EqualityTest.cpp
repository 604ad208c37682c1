// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <type_traits>

#include <gtest/gtest.h>

#include "model/Codec.h"
#include "model/Samples.h"

namespace quillmark::test {
namespace {

template <class R>
class Equality : public testing::Test {};
using Records = testing::Types<AgentStatus, AlertsResponse, ThreatAlert, NetworkResponse,
                               NetworkConnection, InventoryData, InstalledApp>;
TYPED_TEST_SUITE(Equality, Records);

// Lists compare records by it: a forgotten field would keep its old value on the screen.
TYPED_TEST(Equality, DependsOnEveryField) {
  const auto record = sample<TypeParam>();
  forEachField<TypeParam>([&](const auto& field) {
    auto other = record;
    EXPECT_EQ(other, record);
    other.*field.member = std::remove_cvref_t<decltype(other.*field.member)>();
    EXPECT_NE(other, record) << field.key;
    EXPECT_NE(record, other) << field.key;
  });
}

}  // namespace
}  // namespace quillmark::test
