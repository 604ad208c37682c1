// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

namespace quillmark {

/// One poll's value, shared between the view model and the list models that
/// show it, and never changed after it was made.
template <class T>
using Snapshot = std::shared_ptr<const T>;

}  // namespace quillmark
