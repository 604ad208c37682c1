// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

namespace quillmark::test {

/// What a view shows of a row that is the only one of its snapshot.
template <class Row>
[[nodiscard]] auto presented(const Row& row) {
  return present(std::make_shared<const Row>(row));
}

}  // namespace quillmark::test
