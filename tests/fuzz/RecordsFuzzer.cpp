// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstddef>
#include <string_view>

#include "fuzz/Fuzzer.h"
#include "model/Codec.h"
#include "model/Pieces.h"

namespace {

using namespace quillmark;
using namespace quillmark::fuzz;

template <Record R>
void decodeAs(std::string_view json) {
  const auto record = decode<R>(json);
  for (const std::size_t pieceSize : {std::size_t{1}, std::size_t{7}}) {
    const auto other = test::decodedInPieces<R>(json, pieceSize, pieceSize > 1);
    require(record ? other && *other == *record : other.has_error(),
            "a text decodes to the same in pieces");
  }
  if (!record) {
    require(!record.error().detail.empty(), "a failure says what it is");
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
