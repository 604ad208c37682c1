// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/FocusFollower.h"

#include <algorithm>

namespace quillmark {
namespace {

// The distance between the item and the edge, so that its label is visible as well.
constexpr qreal margin = 32;

}  // namespace

void FocusFollower::setTarget(QQuickItem* target) {
  if (target_) {
    target_->disconnect(this);
  }
  target_ = target;
  if (target_) {
    connect(target_, &QQuickItem::windowChanged, this, &FocusFollower::watch);
    connect(target_, &QQuickItem::heightChanged, this, &FocusFollower::keepInView);
    // Connected by name, because Flickable's C++ class is not public.
    connect(target_, SIGNAL(contentHeightChanged()), this, SLOT(keepInView()));
    watch(target_->window());
  }
}

void FocusFollower::reveal(QQuickItem* item) {
  item_ = item;
  keepInView();
}

void FocusFollower::watch(QQuickWindow* window) {
  if (window_) {
    window_->disconnect(this);
  }
  window_ = window;
  if (window_) {
    connect(window_, &QQuickWindow::activeFocusItemChanged, this, &FocusFollower::followFocus);
  }
}

void FocusFollower::followFocus() { reveal(window_->activeFocusItem()); }

void FocusFollower::keepInView() const {
  const auto* const content = target_->property("contentItem").value<QQuickItem*>();
  if (content == nullptr || !item_ || !content->isAncestorOf(item_)) {
    return;
  }
  const auto place = item_->mapRectToItem(content, item_->boundingRect());
  const auto last = std::max(0.0, target_->property("contentHeight").toReal() - target_->height());
  const auto lowest = place.top() - margin;
  const auto highest = place.bottom() + margin - target_->height();
  const auto now = target_->property("contentY").toReal();
  target_->setProperty("contentY", std::clamp(std::min(std::max(now, highest), lowest), 0.0, last));
}

}  // namespace quillmark
