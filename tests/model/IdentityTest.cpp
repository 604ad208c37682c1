// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "model/InstalledApp.h"
#include "model/NetworkConnection.h"
#include "model/Samples.h"
#include "model/ThreatAlert.h"
#include "platform/Uuid.h"

namespace quillmark::test {
namespace {

constexpr int reads = 1000;

template <class R>
class Identity : public testing::Test {};
using Identifiable = testing::Types<ThreatAlert, NetworkConnection, InstalledApp>;
TYPED_TEST_SUITE(Identity, Identifiable);

TYPED_TEST(Identity, IsDifferentAtEveryRead) {
  const auto record = sample<TypeParam>();
  std::set<decltype(record.id())> seen;
  for (int i = 0; i < reads; ++i) {
    seen.insert(record.id());
  }
  EXPECT_EQ(seen.size(), reads);
}

TYPED_TEST(Identity, IsNotAField) {
  const auto record = sample<TypeParam>();
  const auto copy = record;
  EXPECT_NE(record.id(), copy.id());
  EXPECT_EQ(record, copy);
  for (const auto& key : keysOf<TypeParam>()) {
    EXPECT_NE(key, "id");
  }
}

TYPED_TEST(Identity, IsDifferentOnEveryThread) {
  std::vector<std::vector<decltype(TypeParam{}.id())>> read(4);
  std::vector<std::thread> threads;
  for (auto& ids : read) {
    threads.emplace_back([&ids] {
      const TypeParam record;
      for (int i = 0; i < reads; ++i) {
        ids.push_back(record.id());
      }
    });
  }
  for (auto& thread : threads) {
    thread.join();
  }
  std::set<decltype(TypeParam{}.id())> seen;
  for (const auto& ids : read) {
    seen.insert(ids.begin(), ids.end());
  }
  EXPECT_EQ(seen.size(), read.size() * reads);
}

/// Whether `text` has a hexadecimal digit, in upper case, for every x of `form`.
bool hasForm(const std::string& text, const std::string& form) {
  return std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char c, char expected) {
    const bool isDigit = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F');
    return expected == 'x' ? isDigit : c == expected;
  });
}

TEST(IdentityText, IsUpperCaseAndOfVersionFour) {
  const ThreatAlert alert;
  for (int i = 0; i < reads; ++i) {
    const std::string id = alert.id();
    EXPECT_EQ(id.size(), 36U);
    EXPECT_TRUE(hasForm(id, "xxxxxxxx-xxxx-4xxx-xxxx-xxxxxxxxxxxx")) << id;
    EXPECT_NE(std::string("89AB").find(id[19]), std::string::npos) << id;
  }
}

TEST(IdentityValue, IsOfVersionFour) {
  for (int i = 0; i < reads; ++i) {
    for (const Uuid& id : {NetworkConnection{}.id(), InstalledApp{}.id()}) {
      EXPECT_EQ(id.version(), Uuid::version_random_number_based);
      EXPECT_EQ(id.variant(), Uuid::variant_rfc_4122);
    }
  }
}

TEST(IdentityText, IsTheTextOfTheValue) {
  const Uuid uuid{{0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0x4D, 0xEF, 0x80, 0x00, 0x00, 0x00, 0x00,
                   0xFE, 0xDC, 0xBA}};
  EXPECT_EQ(upperCaseText(uuid), "01234567-89AB-4DEF-8000-000000FEDCBA");
}

}  // namespace
}  // namespace quillmark::test
