// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "client/AnswerReader.h"

namespace quillmark::test {
namespace {

// A low limit, so that short texts can exceed it.
constexpr HttpLimits fewBytes{.headerBytes = 64};

/// The body of an answer that arrives in pieces of this size.
std::optional<std::string> bodyInPieces(std::string_view answer, std::size_t pieceSize) {
  AnswerReader reader(fewBytes);
  while (!reader.isOver() && !answer.empty()) {
    const auto space = reader.prepare();
    const auto piece = answer.substr(0, std::min(pieceSize, space.size()));
    std::memcpy(space.data(), piece.data(), piece.size());
    answer.remove_prefix(piece.size());
    reader.parse(piece.size());
  }
  if (!reader.isOver()) {
    reader.finish();
  }
  auto result = reader.takeResult();
  return result ? std::optional(std::move(result->body)) : std::nullopt;
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
const std::string chunked = ok + "Transfer-Encoding: chunked\r\n\r\n";

TEST(AnswerReaderInPieces, ReadsTheSameBody) {
  EXPECT_TRUE(isSameInPieces(ok + "Content-Length: 4\r\n\r\nbody", "body"));
  EXPECT_TRUE(isSameInPieces(ok + "Content-Length: 0\r\n\r\n", ""));
  EXPECT_TRUE(isSameInPieces(ok + "\r\nbody", "body"));
  EXPECT_TRUE(isSameInPieces("HTTP/1.1 103 Early Hints\r\nA: b\r\n\r\n" + ok + "\r\nx", "x"));
}

TEST(AnswerReaderInPieces, ReadsTheSameChunks) {
  EXPECT_TRUE(isSameInPieces(chunked + "4;x=y\r\nbody\r\n1\r\n!\r\n0\r\n\r\n", "body!"));
  EXPECT_TRUE(isSameInPieces(chunked + "2\r\n{}\r\n000;x\r\nX: y\r\n\r\n", "{}"));
  const auto longBody = std::string(100, 'x');
  EXPECT_TRUE(isSameInPieces(chunked + "64\r\n" + longBody + "\r\n0\r\n\r\n", longBody));
}

TEST(AnswerReaderInPieces, RefusesTheSameLongLines) {
  const std::string fifty(50, 'y');
  const auto answer = [](const std::string& extension, const std::string& trailer) {
    return chunked + "1;" + extension + "\r\nx\r\n0\r\nX: " + trailer + "\r\n\r\n";
  };
  EXPECT_TRUE(isSameInPieces(answer(fifty, fifty), "x"));
  EXPECT_TRUE(isSameInPieces(answer(fifty + fifty, ""), std::nullopt));
  EXPECT_TRUE(isSameInPieces(answer("", fifty + fifty), std::nullopt));
}

// The body then begins with the size of the last chunk.
TEST(AnswerReaderInPieces, ReadsTheSameEmptyBody) {
  EXPECT_TRUE(isSameInPieces(chunked + "0\r\n\r\n", ""));
  EXPECT_TRUE(isSameInPieces(chunked + "0\r\nX: y\r\n\r\n", ""));
}

TEST(AnswerReaderInPieces, RefusesTheSameMalformedAnswers) {
  EXPECT_TRUE(isSameInPieces(chunked + "0\r\n{\r\n0\r\n\r\n", std::nullopt));
  EXPECT_TRUE(isSameInPieces(chunked + "x\r\nbody\r\n0\r\n\r\n", std::nullopt));
  EXPECT_TRUE(isSameInPieces(chunked + "1\r\nxx\r\n0\r\n\r\n", std::nullopt));
  EXPECT_TRUE(isSameInPieces(chunked + "4\r\nbody\r\n0\r\n", std::nullopt));
  EXPECT_TRUE(isSameInPieces(ok + "Content-Length: 5\r\n\r\nbody", std::nullopt));
  EXPECT_TRUE(isSameInPieces("HTTP/1.1 ", std::nullopt));
}

}  // namespace
}  // namespace quillmark::test
