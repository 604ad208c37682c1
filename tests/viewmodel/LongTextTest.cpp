// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/LongText.h"

#include <memory>
#include <string>

#include <QStringList>

#include <gtest/gtest.h>

#include "model/Repeated.h"
#include "model/ThreatAlert.h"
#include "viewmodel/PrintQString.h"

namespace quillmark::test {
namespace {

QStringList piecesOf(const std::string& text) {
  const auto snapshot = std::make_shared<const std::string>(text);
  const LongText pieces(snapshot);
  QStringList all;
  while (const auto piece = pieces.piece(static_cast<std::size_t>(all.size()))) {
    all.push_back(*piece);
  }
  return all;
}

TEST(PiecesOfText, AreTheTextItselfUnlessItIsLong) {
  for (const std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{4000}}) {
    const std::string text(length, 'x');
    EXPECT_EQ(piecesOf(text), QStringList{QString::fromStdString(text)});
    EXPECT_FALSE(isLong(text));
  }
}

TEST(PiecesOfText, MakeUpTheText) {
  for (const std::string part : {"x", "word ", "\U0001F41E", " \U0001F41E", "x\u0301"}) {
    const auto text = repeated(9001, part);
    const auto pieces = piecesOf(text);
    EXPECT_GT(pieces.size(), 1);
    EXPECT_EQ(pieces.join(QString()).toStdString(), text) << part;
    for (const auto& piece : pieces) {
      EXPECT_LE(piece.toUtf8().size(), 4200);
      EXPECT_FALSE(piece.isEmpty());
    }
  }
}

// Each is laid out by itself, and so begins a line as it is.
TEST(PiecesOfText, ShareALineBreakBetweenThem) {
  for (const std::string lineBreak : {"\n", "\r\n", "\r"}) {
    // At every place around the end of a piece in turn.
    for (const auto& before : {"", "x", "xx"}) {
      const auto text = before + repeated(3001, "four" + lineBreak);
      const auto pieces = piecesOf(text);
      EXPECT_GT(pieces.size(), 1);
      EXPECT_EQ(pieces.join(QString::fromStdString(lineBreak)).toStdString(), text);
    }
  }
}

TEST(PiecesOfText, EndWithWhiteSpaceWhereThereIsSome) {
  auto pieces = piecesOf(repeated(5001, "four "));
  pieces.removeLast();
  for (const auto& piece : pieces) {
    EXPECT_TRUE(piece.back().isSpace());
  }
}

TEST(PiecesOfText, KeepTheBytesOfACharacterTogether) {
  // At every place of a character in turn.
  for (const std::string before : {"", "x", "xx", "xxx"}) {
    const auto text = before + repeated(4000, "\U0001F41E");
    EXPECT_EQ(piecesOf(text).join(QString()).toStdString(), text);
  }
}

TEST(LongText, HasOnlyItsBeginningOnceItsSnapshotIsGone) {
  auto snapshot = std::make_shared<const std::string>(9000, 'x');
  const LongText text(snapshot, QStringLiteral("v"));
  EXPECT_TRUE(text.isLong());
  EXPECT_EQ(text.piece(1), QString(4000, QLatin1Char('x')));
  snapshot.reset();
  EXPECT_EQ(text.piece(1), std::nullopt);
  EXPECT_EQ(text.piece(0), QLatin1Char('v') + QString(4000, QLatin1Char('x')));
}

TEST(ShortenedText, IsItsFirstPiece) {
  EXPECT_EQ(shortened("short"), QStringLiteral("short"));
  EXPECT_EQ(shortened(std::string(4001, 'x')),
            QString(4000, QLatin1Char('x')) + QStringLiteral("…"));
}

TEST(LongTextOfRecord, IsFoundInEveryField) {
  EXPECT_FALSE(hasLongText(ThreatAlert{"a", "b", "c", "d", "e", "f"}));
  EXPECT_FALSE(hasLongText(ThreatAlert{"a", "b", {}, {}, {}, {}}));
  std::apply(
      [](const auto&... field) {
        ThreatAlert alert{"a", "b", {}, {}, {}, {}};
        const auto isFound = [&](auto member) {
          auto changed = alert;
          changed.*member = std::string(4001, 'x');
          return hasLongText(changed);
        };
        EXPECT_TRUE((isFound(field.member) && ...));
      },
      ThreatAlert::fields);
}

}  // namespace
}  // namespace quillmark::test
