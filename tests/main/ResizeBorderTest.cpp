// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/ResizeBorder.h"

#include <QTest>

#include "main/WindowTest.h"

namespace quillmark::test {
namespace {

struct Place {
  QPoint point;
  Qt::Edges edges;
  Qt::CursorShape cursor;
};

// In the usual window of 1000 by 700.
const QList<Place> places{
    {{500, 4}, Qt::TopEdge, Qt::SizeVerCursor},
    {{500, 695}, Qt::BottomEdge, Qt::SizeVerCursor},
    {{4, 350}, Qt::LeftEdge, Qt::SizeHorCursor},
    {{995, 350}, Qt::RightEdge, Qt::SizeHorCursor},
    {{11, 11}, Qt::TopEdge | Qt::LeftEdge, Qt::SizeFDiagCursor},
    {{988, 11}, Qt::TopEdge | Qt::RightEdge, Qt::SizeBDiagCursor},
    {{11, 688}, Qt::BottomEdge | Qt::LeftEdge, Qt::SizeBDiagCursor},
    {{988, 688}, Qt::BottomEdge | Qt::RightEdge, Qt::SizeFDiagCursor},
};

const QList<QPoint> within{{500, 5}, {500, 694}, {5, 350}, {994, 350}, {12, 12}, {987, 687}};

class ResizeBorderTest : public WindowTest {
 protected:
  static const ResizeBorder& borderOf(const QQuickWindow& window) {
    return *window.findChild<ResizeBorder*>();
  }
};

TEST_F(ResizeBorderTest, KnowsTheEdgesOfEachPlace) {
  const auto& border = borderOf(*presented());
  for (const auto& place : places) {
    EXPECT_EQ(border.edgesAt(place.point), place.edges) << place.edges.toInt();
    EXPECT_TRUE(border.contains(place.point)) << place.edges.toInt();
  }
}

TEST_F(ResizeBorderTest, DoesNotContainPointsFurtherInside) {
  const auto& border = borderOf(*presented());
  for (const auto& point : within) {
    EXPECT_FALSE(border.contains(point)) << point.x() << ' ' << point.y();
  }
}

TEST_F(ResizeBorderTest, EndsAtTheEdgeOfTheWindow) {
  const auto& border = borderOf(*presented());
  EXPECT_FALSE(border.contains({-1, 350}));
  EXPECT_FALSE(border.contains({500, 700}));
}

TEST_F(ResizeBorderTest, ShowsTheCursorOfEachEdge) {
  auto* const window = presented();
  for (const auto& place : places) {
    QTest::mouseMove(window, place.point);
    EXPECT_EQ(window->cursor().shape(), place.cursor) << place.edges.toInt();
  }
  QTest::mouseMove(window, within.first());
  EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ResizeBorderTest, IsHiddenInAMaximizedWindow) {
  auto* const window = presented();
  window->showMaximized();
  EXPECT_TRUE(waitUntil([&] { return !borderOf(*window).isVisible(); }));
}

TEST_F(ResizeBorderTest, TakesADoubleClickFromTheHeader) {
  auto* const window = presented();
  QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, {500, 2});
  EXPECT_FALSE(window->windowStates() & Qt::WindowMaximized);
}

}  // namespace
}  // namespace quillmark::test
