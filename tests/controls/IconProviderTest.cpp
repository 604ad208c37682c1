// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <map>
#include <string>
#include <vector>

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

#include "controls/IconProvider.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

const std::vector<std::string> iconNames{"antenna.radiowaves.left.and.right",
                                         "bell.badge",
                                         "checkmark.circle",
                                         "checkmark.circle.fill",
                                         "doc.badge.plus",
                                         "document.text",
                                         "exclamationmark.circle",
                                         "exclamationmark.circle.fill",
                                         "exclamationmark.triangle.fill",
                                         "folder",
                                         "gear",
                                         "info.circle",
                                         "key.fill",
                                         "network",
                                         "play.fill",
                                         "rectangle.stack",
                                         "shield.fill",
                                         "square.grid.2x2",
                                         "stop.fill"};

QImage drawn(const std::string& name, const QColor& color, const QSize& size) {
  IconProvider provider;
  QSize reported;
  auto image = provider.requestImage(QString::fromStdString(name) + color.name(), &reported, size);
  EXPECT_EQ(reported, image.isNull() ? QSize() : image.size());
  return image;
}

/// The share of the picture that is covered, 0 to 1.
double coverage(const QImage& image) {
  double sum = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      sum += image.pixelColor(x, y).alphaF();
    }
  }
  return sum / (image.width() * image.height());
}

class IconTest : public testing::TestWithParam<std::string> {};

// The sizes that views use, at the pixel ratios of common displays.
TEST_P(IconTest, HasExactlyTheRequestedSize) {
  for (const int side : {16, 24, 28, 32, 42, 48, 64, 72, 96}) {
    const auto image = drawn(GetParam(), Qt::black, QSize(side, side));
    EXPECT_EQ(image.size(), QSize(side, side));
    EXPECT_GT(coverage(image), 0.08) << side;
    EXPECT_LT(coverage(image), 0.85) << side;
  }
}

TEST_P(IconTest, HasOnlyItsColour) {
  for (const QColor color :
       {QColor(0x0B, 0x5F, 0xD9), QColor(0xC4, 0x23, 0x2B), QColor(Qt::white)}) {
    const auto image = drawn(GetParam(), color, QSize(48, 48));
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const auto pixel = image.pixelColor(x, y);
        // The colour of fainter pixels is stored too coarsely for a comparison.
        if (pixel.alpha() >= 128) {
          ASSERT_NEAR(pixel.red(), color.red(), 2);
          ASSERT_NEAR(pixel.green(), color.green(), 2);
          ASSERT_NEAR(pixel.blue(), color.blue(), 2);
        }
      }
    }
  }
}

TEST_P(IconTest, IsNotCutOffAtAnEdge) {
  const auto image = drawn(GetParam(), Qt::black, QSize(96, 96));
  for (int i = 0; i < 96; ++i) {
    for (const QPoint point : {QPoint(i, 0), QPoint(i, 95), QPoint(0, i), QPoint(95, i)}) {
      EXPECT_LT(image.pixelColor(point).alpha(), 32) << point.x() << ", " << point.y();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Names, IconTest, testing::ValuesIn(iconNames));

TEST(IconProvider, DrawsEveryNameDifferently) {
  std::map<std::string, std::string> drawings;
  for (const auto& name : iconNames) {
    const auto image = drawn(name, Qt::black, QSize(48, 48));
    const std::string pixels(reinterpret_cast<const char*>(image.constBits()),
                             static_cast<std::size_t>(image.sizeInBytes()));
    const auto [same, isNew] = drawings.emplace(pixels, name);
    EXPECT_TRUE(isNew) << name << " looks like " << same->second;
  }
}

TEST(IconProvider, HasADefaultSize) {
  EXPECT_EQ(drawn("gear", Qt::black, QSize()).size(), QSize(24, 24));
}

TEST(IconProvider, HasNoPictureForOtherNames) {
  const KeptWarnings warnings;
  for (const auto* const name :
       {"", "unknown", "Gear", "gear.svg", "gear ", "icons/gear", "/etc/hosts"}) {
    EXPECT_TRUE(drawn(name, Qt::black, QSize(24, 24)).isNull()) << name;
  }
}

}  // namespace
}  // namespace quillmark::test
