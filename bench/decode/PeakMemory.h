// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

namespace quillmark::bench {

/// The peak of resident memory in bytes while `action` runs, minus that before it, in
/// whole pages as the kernel counts them. `smallAction` runs first and should touch
/// the same code, whose pages are shared with other processes and are not counted.
/// Measured in a child process, so that no memory freed earlier is reused. One thread
/// only.
[[nodiscard]] double peakExtraBytes(const std::function<void()>& smallAction,
                                    const std::function<void()>& action);

}  // namespace quillmark::bench
