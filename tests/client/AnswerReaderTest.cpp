// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "client/HttpMessages.h"

namespace quillmark::test {
namespace {

using State = AnswerReader::State;

// Just enough for what is read here, so that a little more than that is too much.
constexpr HttpLimits limits{.headerBytes = 64};

/// The body of an answer that comes in pieces of this size.
std::optional<std::string> bodyInPieces(std::string_view answer, std::size_t pieceSize) {
  std::string body;
  AnswerReader reader(limits, [&](std::string_view part, auto /*left*/) { body += part; });
  auto state = State::wantsMore;
  while (state == State::wantsMore && !answer.empty()) {
    const auto piece = answer.substr(0, pieceSize);
    std::memcpy(reader.space().data(), piece.data(), piece.size());
    answer.remove_prefix(piece.size());
    state = reader.received(piece.size());
  }
  if (state == State::wantsMore) {
    state = reader.ended();
  }
  return reader.outcome() ? std::optional(body) : std::nullopt;
}

testing::AssertionResult isSameInPieces(const std::string& answer,
                                        const std::optional<std::string>& body) {
  for (std::size_t pieceSize = 1; pieceSize <= answer.size(); ++pieceSize) {
    if (bodyInPieces(answer, pieceSize) != body) {
      return testing::AssertionFailure() << "in pieces of " << pieceSize << ": " << answer;
    }
  }
  return testing::AssertionSuccess();
}

const std::string ok = "HTTP/1.1 200 OK\r\n";
const std::string chunkedHeader = ok + "Transfer-Encoding: chunked\r\n\r\n";

TEST(AnswerReaderInPieces, ReadsTheSameBody) {
  EXPECT_TRUE(isSameInPieces(ok + "Content-Length: 4\r\n\r\nbody", "body"));
  EXPECT_TRUE(isSameInPieces(ok + "Content-Length: 0\r\n\r\n", ""));
  EXPECT_TRUE(isSameInPieces(ok + "\r\nbody", "body"));
  EXPECT_TRUE(isSameInPieces("HTTP/1.1 103 Early Hints\r\nA: b\r\n\r\n" + ok + "\r\nx", "x"));
}

TEST(AnswerReaderInPieces, ReadsTheSameChunks) {
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "4;x=y\r\nbody\r\n1\r\n!\r\n0\r\n\r\n", "body!"));
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "2\r\n{}\r\n000;x\r\nX: y\r\n\r\n", "{}"));
  const auto longBody = std::string(100, 'x');
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "64\r\n" + longBody + "\r\n0\r\n\r\n", longBody));
}

/// What the body's takers are told to be left after each piece of it.
std::vector<std::optional<std::size_t>> leftOf(const std::string& answer) {
  std::vector<std::optional<std::size_t>> told;
  AnswerReader reader(limits, [&](auto /*piece*/, auto left) { told.push_back(left); });
  auto state = State::wantsMore;
  for (auto byte = answer.begin(); byte != answer.end() && state == State::wantsMore; ++byte) {
    *static_cast<char*>(reader.space().data()) = *byte;
    state = reader.received(1);
  }
  return told;
}

TEST(AnswerReader, TellsWhatIsLeftOfABodyWhoseLengthIsKnown) {
  using Left = std::vector<std::optional<std::size_t>>;
  EXPECT_EQ(leftOf(ok + "Content-Length: 3\r\n\r\nabc"), (Left{2, 1, 0}));
  EXPECT_EQ(leftOf(ok + "\r\nab"), (Left{std::nullopt, std::nullopt}));
  EXPECT_EQ(leftOf(chunkedHeader + "2\r\nab\r\n0\r\n\r\n"), Left{std::nullopt});
}

TEST(AnswerReaderInPieces, RefusesTheSameLongLines) {
  const std::string fifty(50, 'y');
  const auto answer = [](const std::string& extension, const std::string& trailer) {
    return chunkedHeader + "1;" + extension + "\r\nx\r\n0\r\nX: " + trailer + "\r\n\r\n";
  };
  EXPECT_TRUE(isSameInPieces(answer(fifty, fifty), "x"));
  EXPECT_TRUE(isSameInPieces(answer(fifty + fifty, ""), std::nullopt));
  EXPECT_TRUE(isSameInPieces(answer("", fifty + fifty), std::nullopt));
}

// The size of the last chunk is then the first thing of the body.
TEST(AnswerReaderInPieces, ReadsNoChunks) {
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "0\r\n\r\n", ""));
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "0\r\nX: y\r\n\r\n", ""));
}

TEST(AnswerReaderInPieces, RefusesTheSame) {
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "0\r\n{\r\n0\r\n\r\n", std::nullopt));
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "x\r\nbody\r\n0\r\n\r\n", std::nullopt));
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "1\r\nxx\r\n0\r\n\r\n", std::nullopt));
  EXPECT_TRUE(isSameInPieces(chunkedHeader + "4\r\nbody\r\n0\r\n", std::nullopt));
  EXPECT_TRUE(isSameInPieces(ok + "Content-Length: 5\r\n\r\nbody", std::nullopt));
  EXPECT_TRUE(isSameInPieces("HTTP/1.1 ", std::nullopt));
}

}  // namespace
}  // namespace quillmark::test
