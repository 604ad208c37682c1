// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>

#include "model/InventoryData.h"
#include "viewmodel/PollingTest.h"

namespace {

std::atomic<std::size_t> lastSize = 0;
std::atomic<std::size_t> failingSize = 0;
std::atomic<int> failures = 0;

}  // namespace

/// Fails for allocations of `failingSize` bytes.
void* operator new(std::size_t size) {
  lastSize = size;
  if (size == failingSize) {
    ++failures;
    throw std::bad_alloc();
  }
  if (void* const memory = std::malloc(size)) {
    return memory;
  }
  throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t& /*never throw*/) noexcept {
  return std::malloc(size);
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace quillmark::test {
namespace {

using PollMemoryTest = PollingTest;

// The inventory is allocated last, when the other results are complete.
TEST_F(PollMemoryTest, AssignsNoValuesWhenMemoryRunsOut) {
  const auto model = makeModel();
  const Backend backend(goodAnswers());
  poll(*model);
  ASSERT_EQ(summaryOf(*model), goodSummary);

  static_cast<void>(std::make_shared<const InventoryData>());
  failingSize = lastSize.load();
  poll(*model);
  failingSize = 0;
  EXPECT_EQ(failures, 1);
  EXPECT_EQ(summaryOf(*model), emptySummary);
}

}  // namespace
}  // namespace quillmark::test
