// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>
#include <vector>

namespace quillmark {

/// One poll's value, shared between the view model and the list models that
/// show it. It is immutable.
template <class T>
using Snapshot = std::shared_ptr<const T>;

/// An empty list, the same object at every call. Any thread.
template <class T>
[[nodiscard]] Snapshot<std::vector<T>> emptyList() {
  static const auto list = std::make_shared<const std::vector<T>>();
  return list;
}

}  // namespace quillmark
