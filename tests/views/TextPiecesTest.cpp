// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "views/TextPieces.h"

#include <memory>
#include <string>
#include <utility>

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

class TextPiecesTest : public testing::Test {
 protected:
  /// Shows a text, of which there is no other copy.
  void show(const std::string& text) {
    auto before = std::exchange(text_, std::make_shared<const std::string>(text));
    model_.setText(LongText(text_));
  }

  [[nodiscard]] QString shown() const {
    QString text;
    for (int row = 0; row < model_.rowCount(); ++row) {
      text += model_.data(model_.index(row), Qt::DisplayRole).toString();
    }
    return text;
  }

  TextPieces model_;
  QSignalSpy resets_{&model_, &QAbstractItemModel::modelReset};

 private:
  std::shared_ptr<const std::string> text_;
};

TEST_F(TextPiecesTest, ShowsAllButTheFirstWhenAskedTo) {
  show(std::string(9000, 'x'));
  EXPECT_FALSE(model_.isShort());
  EXPECT_EQ(model_.rowCount(), 1);
  EXPECT_TRUE(model_.showNext());
  EXPECT_TRUE(model_.showNext());
  EXPECT_EQ(shown(), QString(9000, QLatin1Char('x')));
  EXPECT_FALSE(model_.showNext());
  EXPECT_EQ(model_.rowCount(), 3);
}

TEST_F(TextPiecesTest, ShowsAShortTextWhole) {
  show("short");
  EXPECT_TRUE(model_.isShort());
  EXPECT_EQ(shown(), QStringLiteral("short"));
  EXPECT_FALSE(model_.showNext());
}

TEST_F(TextPiecesTest, ShowsAnEmptyTextAsALine) {
  show("");
  EXPECT_EQ(model_.rowCount(), 1);
}

TEST_F(TextPiecesTest, BeginsAnewWithAnotherText) {
  show(std::string(9000, 'x'));
  EXPECT_TRUE(model_.showNext());
  show(std::string(9000, 'y'));
  EXPECT_EQ(model_.rowCount(), 1);
  EXPECT_EQ(resets_.count(), 2);
  show("y");
  EXPECT_TRUE(model_.isShort());
  EXPECT_EQ(shown(), QStringLiteral("y"));
}

TEST_F(TextPiecesTest, GoesOnWithTheSameTextFromAnotherSnapshot) {
  show(std::string(9000, 'x'));
  EXPECT_TRUE(model_.showNext());
  show(std::string(8000, 'x') + "y");
  EXPECT_EQ(model_.rowCount(), 2);
  EXPECT_EQ(resets_.count(), 1);
  EXPECT_TRUE(model_.showNext());
  EXPECT_EQ(shown(), QString(8000, QLatin1Char('x')) + QLatin1Char('y'));
}

TEST_F(TextPiecesTest, BeginsAnewWithATextThatEndsEarlier) {
  show(std::string(9000, 'x'));
  EXPECT_TRUE(model_.showNext());
  show(std::string(4000, 'x'));
  EXPECT_EQ(shown(), QString(4000, QLatin1Char('x')));
}

}  // namespace
}  // namespace quillmark::test
