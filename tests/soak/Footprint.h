// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark::test {

/// The resources that this process uses at a moment.
struct Footprint {
  long residentKib = 0;
  long descriptors = 0;
  long threads = 0;

  [[nodiscard]] static Footprint now();
};

/// Prints the growth as one line of JSON; true if it is at most `allowedKib`, and no
/// descriptor or thread.
[[nodiscard]] bool report(const std::string& what, long polls, double seconds,
                          const Footprint& before, const Footprint& after, long allowedKib);

}  // namespace quillmark::test
