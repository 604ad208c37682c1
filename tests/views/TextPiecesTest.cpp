// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "views/TextPieces.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

QStringList piecesOf(const QString& text) {
  TextPieces model;
  model.setText(text);
  EXPECT_EQ(model.rowCount(), 1) << "all but the first wait until they are asked for";
  while (model.hasNext()) {
    model.showNext();
  }
  QStringList pieces;
  for (int i = 0; i < model.rowCount(); ++i) {
    pieces.push_back(model.data(model.index(i), Qt::DisplayRole).toString());
  }
  return pieces;
}

TEST(PiecesOfText, AreTheTextItselfUnlessItIsLong) {
  for (const int length : {0, 1, 4000}) {
    const QString text(length, QLatin1Char('x'));
    EXPECT_EQ(piecesOf(text), QStringList{text});
  }
}

TEST(PiecesOfText, MakeUpTheText) {
  for (const char* const part :
       {"x", "word ", "a line\n", "\xF0\x9F\x90\x9E", " \xF0\x9F\x90\x9E"}) {
    const auto text = QString::fromUtf8(part).repeated(9001);
    const auto pieces = piecesOf(text);
    EXPECT_GT(pieces.size(), 1);
    EXPECT_TRUE(pieces.join(QString()) == text) << part;
    for (const auto& piece : pieces) {
      EXPECT_LE(piece.size(), 4200);
      EXPECT_FALSE(piece.isEmpty());
    }
  }
}

TEST(PiecesOfText, EndWithWhiteSpaceWhereThereIsSome) {
  auto pieces = piecesOf(QStringLiteral("four ").repeated(5001));
  pieces.removeLast();
  for (const auto& piece : pieces) {
    EXPECT_TRUE(piece.back().isSpace());
  }
}

TEST(PiecesOfText, BeginAnewWithANewText) {
  TextPieces model;
  model.setText(QString(9000, QLatin1Char('x')));
  EXPECT_FALSE(model.isShort());
  model.showNext();
  EXPECT_EQ(model.rowCount(), 2);
  model.setText(QStringLiteral("short"));
  EXPECT_TRUE(model.isShort());
  EXPECT_EQ(model.rowCount(), 1);
  EXPECT_FALSE(model.hasNext());
}

TEST(PiecesOfText, KeepTheHalvesOfACharacterTogether) {
  // At an odd place, so that a piece would end amid a character.
  const auto text = QStringLiteral("x") + QString::fromUtf8("\xF0\x9F\x90\x9E").repeated(4000);
  for (const auto& piece : piecesOf(text)) {
    EXPECT_FALSE(piece.front().isLowSurrogate());
    EXPECT_FALSE(piece.back().isHighSurrogate());
  }
}

}  // namespace
}  // namespace quillmark::test
