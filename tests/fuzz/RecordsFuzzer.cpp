// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <string_view>

#include "fuzz/Fuzzer.h"
#include "model/Codec.h"

namespace {

using namespace quillmark;
using namespace quillmark::fuzz;

template <Record R>
void decodeAs(std::string_view json) {
  const auto record = decode<R>(std::string(json));
  if (!record) {
    require(!record.error().detail.empty(), "a failure has a detail");
    return;
  }
  const auto again = decode<R>(encode(*record));
  require(again.has_value(), "what was encoded decodes");
  require(*again == *record, "what was encoded decodes to the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto json = textOf(data, size);
  decodeAs<AgentStatus>(json);
  decodeAs<ThreatAlert>(json);
  decodeAs<NetworkConnection>(json);
  decodeAs<InstalledApp>(json);
  decodeAs<InventoryData>(json);
  decodeAs<AlertsResponse>(json);
  decodeAs<NetworkResponse>(json);
  return 0;
}
