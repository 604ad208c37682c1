// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>

#include "client/HttpMessages.h"
#include "fuzz/Fuzzer.h"

namespace {

using namespace quillmark;
using namespace quillmark::fuzz;
using State = AnswerReader::State;

// Small, so that short inputs reach them.
constexpr HttpLimits limits{.headerBytes = 512, .bodyBytes = 1024};

/// The body of the answer that comes in pieces of `pieceSize` bytes.
std::optional<std::string> bodyOf(std::string_view bytes, std::size_t pieceSize) {
  std::string body;
  AnswerReader reader(limits, [&](std::string_view piece, std::optional<std::size_t> left) {
    body += piece;
    require(body.size() + left.value_or(0) <= limits.bodyBytes, "a body keeps to its limit");
  });
  auto state = State::wantsMore;
  while (state == State::wantsMore && !bytes.empty()) {
    const auto space = reader.space();
    const auto piece = bytes.substr(0, std::min(pieceSize, space.size()));
    std::memcpy(space.data(), piece.data(), piece.size());
    bytes.remove_prefix(piece.size());
    state = reader.received(piece.size());
  }
  if (state == State::wantsMore) {
    state = reader.ended();
    require(state != State::wantsMore, "the end of the connection ends the answer");
  }
  const auto outcome = reader.outcome();
  require(outcome.has_value() == (state == State::done), "a failure is told");
  return outcome ? std::optional(body) : std::nullopt;
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
