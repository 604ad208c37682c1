// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <boost/json/monotonic_resource.hpp>
#include <boost/json/parse.hpp>

#include "decode/Contenders.h"

namespace quillmark::bench {

std::size_t documentByBoost(const std::string& body) {
  boost::json::monotonic_resource arena;
  return boost::json::parse(body, &arena).as_object().size();
}

}  // namespace quillmark::bench
