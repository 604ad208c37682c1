// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "views/FocusFollower.h"

#include <algorithm>

namespace quillmark {
namespace {

// What stays between the item and the edge, so that its label shows as well.
constexpr qreal margin = 32;

}  // namespace

void FocusFollower::setTarget(QQuickItem* target) {
  if (target_) {
    target_->disconnect(this);
  }
  target_ = target;
  if (target_) {
    connect(target_, &QQuickItem::windowChanged, this, &FocusFollower::watch);
    watch(target_->window());
  }
}

void FocusFollower::watch(QQuickWindow* window) {
  if (window_) {
    window_->disconnect(this);
  }
  window_ = window;
  if (window_) {
    connect(window_, &QQuickWindow::activeFocusItemChanged, this, &FocusFollower::follow);
  }
}

void FocusFollower::follow() const {
  const auto* const content =
      target_ ? target_->property("contentItem").value<QQuickItem*>() : nullptr;
  const auto* const item = window_->activeFocusItem();
  if (content == nullptr || item == nullptr || !content->isAncestorOf(item)) {
    return;
  }
  const auto place = item->mapRectToItem(content, item->boundingRect());
  const auto last = std::max(0.0, target_->property("contentHeight").toReal() - target_->height());
  const auto lowest = place.top() - margin;
  const auto highest = place.bottom() + margin - target_->height();
  const auto now = target_->property("contentY").toReal();
  target_->setProperty("contentY", std::clamp(std::min(std::max(now, highest), lowest), 0.0, last));
}

}  // namespace quillmark
