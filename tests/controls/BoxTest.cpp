// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>
#include <QTransform>

#include <gtest/gtest.h>

#include "controls/Pixels.h"
#include "main/ViewEngine.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

// How much a curve may differ from its mirror image: invisible, and far less than
// a pixel out of place.
constexpr int tolerance = 8;

/// A white window with one item, on a screen with the given scale.
class BoxWindow : public testing::Test {
 protected:
  BoxWindow() { prepareForViews(engine_); }

  void show(const std::string& thing, const std::string& scale) {
    QQmlComponent component(&engine_);
    component.setData(
        "import QtQuick\nimport Quillmark.Controls\n"
        "Window { width: 200; height: 160; visible: true; color: 'white'\n"
        "property alias holder: holder\n"
        "Item { id: holder; x: 20; y: 20; " +
            QByteArray::fromStdString(thing) + "} }",
        QUrl());
    root_.reset(component.create());
    window_ = qobject_cast<QQuickWindow*>(root_.get());
    ASSERT_NE(window_, nullptr) << component.errorString().toStdString();
    ASSERT_TRUE(waitUntil([this] { return window_->isExposed(); }));
    ASSERT_FALSE(drawn().isNull());
    const auto screens = QGuiApplication::screens();
    const auto screen = std::find_if(screens.begin(), screens.end(), [&](const QScreen* each) {
      return each->name().toStdString() == scale;
    });
    ASSERT_NE(screen, screens.end());
    window_->setPosition((*screen)->geometry().topLeft());
    ASSERT_TRUE(waitUntil([&] { return this->scale() == std::stod(scale); }));
  }

  [[nodiscard]] QQuickItem* holder() const {
    return window_->property("holder").value<QQuickItem*>();
  }
  [[nodiscard]] QQuickItem* box() const { return holder()->childItems().first(); }

  [[nodiscard]] qreal scale() const { return window_->effectiveDevicePixelRatio(); }

  /// The box itself, cut from the window.
  [[nodiscard]] QImage drawn() const {
    const auto image = window_->grabWindow().convertToFormat(QImage::Format_RGB32);
    const auto place = inked(image);
    return place.isEmpty() ? QImage() : image.copy(place);
  }

  QQmlEngine engine_;
  std::unique_ptr<QObject> root_;
  QQuickWindow* window_ = nullptr;
};

const auto scales = testing::Values("1", "1.25", "1.5", "1.75", "2");

class BoxShapeTest : public BoxWindow,
                     public testing::WithParamInterface<std::tuple<std::string, std::string>> {};

TEST_P(BoxShapeTest, HasCornersThatMirrorEachOther) {
  show(std::get<1>(GetParam()), std::get<0>(GetParam()));
  const auto atRest = drawn();
  ASSERT_FALSE(atRest.isNull());
  // As a page that scrolls moves it, also by fractions of a pixel.
  for (const qreal way : {0.0, 1.0, 2.0, 3.0, 0.3, 0.4, 0.7, 11.1}) {
    holder()->setPosition(QPointF(20 + way, 20 + way));
    const auto image = drawn();
    for (const auto& mirror : {QTransform::fromScale(-1, 1), QTransform::fromScale(1, -1)}) {
      EXPECT_LE(difference(image, image.transformed(mirror)), tolerance) << "at " << way;
    }
    EXPECT_LE(difference(image, atRest), tolerance) << "moved by " << way;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Things, BoxShapeTest,
    testing::Combine(
        scales, testing::Values("Box { width: 131; height: 87; radius: 8; color: 'green' }",
                                "Box { width: 8; height: 8; radius: 4; color: 'green' }",
                                "Box { width: 10; height: 10; radius: 5; color: 'green' }",
                                "Box { width: 24; height: 24; radius: 12; color: 'green' }",
                                "Box { width: 6; height: 83; radius: 3; color: 'green' }",
                                "Box { width: 117; height: 3; radius: 2; color: 'green' }",
                                "Box { width: 1; height: 1; radius: 9; color: 'green' }",
                                "Box { width: 93.4; height: 26.6; radius: 6; color: 'yellow'; "
                                "borderWidth: 1; borderColor: 'blue' }",
                                "Box { width: 93; height: 29; radius: 6; color: 'transparent'; "
                                "borderWidth: 2; borderColor: 'blue' }",
                                "SoftShadow { width: 131; height: 87; radius: 8 }")));

class BoxTest : public BoxWindow, public testing::WithParamInterface<std::string> {};

TEST_P(BoxTest, HasTheSizeOfItsItem) {
  // The first size has room only for the corners.
  show("Box { width: 12; height: 24; radius: 6; color: 'green' }", GetParam());
  for (const QSize size : {QSize(12, 24), QSize(104, 56), QSize(24, 12)}) {
    box()->setSize(size);
    EXPECT_EQ(drawn().size(), size * scale());
    EXPECT_EQ(drawn().pixelColor(drawn().rect().center()), QColor("green"));
  }
}

TEST_P(BoxTest, HasRoundCorners) {
  show("Box { width: 104; height: 56; radius: 12; color: 'green' }", GetParam());
  const auto image = drawn();
  const QColor white("white");
  const QColor green("green");
  // How far from the box's corner the arc meets the diagonal.
  const auto tip = 12 * scale() * (1 - std::sqrt(0.5));
  const int outside = static_cast<int>(std::floor(tip)) - 1;
  const int inside = static_cast<int>(std::ceil(tip)) + 1;
  EXPECT_EQ(image.pixelColor(outside, outside), white);
  EXPECT_EQ(image.pixelColor(inside, inside), green);
}

TEST_P(BoxTest, HasABorderOfOneThicknessOnAllSides) {
  show("Box { width: 93; height: 29; radius: 6; color: 'yellow'; borderColor: 'blue' }",
       GetParam());
  // Even the thinnest border has one pixel.
  for (const qreal width : {0.2, 1.0, 2.0}) {
    box()->setProperty("borderWidth", width);
    const auto image = drawn();
    const auto middle = image.rect().center();
    const QColor blue("blue");
    const int thickness = std::max(1, qRound(width * scale()));
    EXPECT_EQ(run(image, {0, middle.y()}, {1, 0}, blue), thickness);
    EXPECT_EQ(run(image, {image.width() - 1, middle.y()}, {-1, 0}, blue), thickness);
    EXPECT_EQ(run(image, {middle.x(), 0}, {0, 1}, blue), thickness);
    EXPECT_EQ(run(image, {middle.x(), image.height() - 1}, {0, -1}, blue), thickness);
    EXPECT_EQ(image.pixelColor(middle), QColor("yellow"));
  }
}

TEST_P(BoxTest, FollowsItsProperties) {
  show("Box { width: 40; height: 24; color: 'green' }", GetParam());
  const std::vector<std::pair<const char*, QVariant>> changes{{"color", QColor("red")},
                                                              {"radius", 9},
                                                              {"borderWidth", 3},
                                                              {"borderColor", QColor("blue")},
                                                              {"shadowBlur", 2}};
  for (const auto& [name, value] : changes) {
    const auto before = drawn();
    box()->setProperty(name, value);
    EXPECT_GT(difference(drawn(), before), 100) << name;
  }
}

TEST_P(BoxTest, DrawsNothingWithoutASize) {
  show("Box { width: 40; height: 24; color: 'green' }", GetParam());
  box()->setHeight(0);
  EXPECT_TRUE(drawn().isNull());
  box()->setHeight(24);
  EXPECT_FALSE(drawn().isNull());
}

TEST_P(BoxTest, HasTheOpacityOfItsItem) {
  show("Box { width: 40; height: 24; radius: 6; color: 'black'; opacity: 0.5 }", GetParam());
  EXPECT_NEAR(drawn().pixelColor(drawn().rect().center()).red(), 127, 2);
}

INSTANTIATE_TEST_SUITE_P(Scales, BoxTest, scales);

}  // namespace
}  // namespace quillmark::test
