// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <span>
#include <string>

namespace quillmark::bench {

/// The least that a poll costs: for each target a blocking socket of its own,
/// one request, everything that comes until the server closes, and the JSON
/// library's plain parse of it. Returns how many bytes of bodies came.
[[nodiscard]] std::size_t leastPoll(std::span<const std::string> targets);

}  // namespace quillmark::bench
