// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <string>

namespace quillmark::bench {

/// The minimal poll: for each target a separate blocking socket, one request, reading
/// until the server closes, and the JSON library's plain parse. Returns the total size
/// of the bodies in bytes.
[[nodiscard]] std::size_t leastPoll(std::span<const std::string> targets);

}  // namespace quillmark::bench
