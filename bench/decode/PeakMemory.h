// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>

namespace quillmark::bench {

/// How many bytes of memory this process holds at most while `action` runs,
/// beyond what it held before, as the kernel counts pages. Before, `smallAction`
/// runs, which should touch the same code: its pages are shared with every other
/// process. Measured in a child, so that nothing freed earlier is there to be
/// used again. One thread only.
[[nodiscard]] double peakExtraBytes(const std::function<void()>& smallAction,
                                    const std::function<void()>& action);

}  // namespace quillmark::bench
