// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

#include "client/AnswerReader.h"
#include "fuzz/Fuzzer.h"

namespace {

using namespace quillmark;
using namespace quillmark::fuzz;

// Small, so that short inputs reach them.
constexpr HttpLimits limits{.headerBytes = 512, .bodyBytes = 1024};

/// The body of the answer that arrives in pieces of `pieceSize` bytes.
std::optional<std::string> bodyOf(std::string_view bytes, std::size_t pieceSize) {
  AnswerReader reader(limits);
  while (!reader.isOver() && !bytes.empty()) {
    const auto space = reader.prepare();
    const auto piece = bytes.substr(0, std::min(pieceSize, space.size()));
    require(!piece.empty(), "there is space until the answer is over");
    std::memcpy(space.data(), piece.data(), piece.size());
    bytes.remove_prefix(piece.size());
    reader.parse(piece.size());
  }
  if (!reader.isOver()) {
    reader.finish();
    require(reader.isOver(), "the end of the connection ends the answer");
  }
  auto result = reader.takeResult();
  if (!result) {
    return std::nullopt;
  }
  require(result->body.size() <= limits.bodyBytes, "a body stays within its limit");
  return std::move(result->body);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bytes = textOf(data, size);
  const auto whole = bodyOf(bytes, bytes.size() + 1);
  for (const std::size_t pieceSize : {std::size_t{1}, std::size_t{7}}) {
    require(bodyOf(bytes, pieceSize) == whole, "an answer is the same in pieces");
  }
  return 0;
}
