// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <boost/json/object.hpp>

#include "Finding.h"
#include "Harmless.h"
#include "model/DecodeError.h"

namespace quillmark::doctor {

/// What the panel makes of one body.
struct Contents {
  std::optional<DecodeError> error;   ///< set when it shows nothing of it
  std::string summary;                ///< in words, such as "2 alerts"
  std::optional<std::string> status;  ///< the agent's word for how it is, made harmless
  Mark mark = Mark::ok;
  boost::json::object entries;  ///< how many of what
};

// One for each body of the interface.
[[nodiscard]] Contents readStatus(std::string_view body, const Harmless& harmless);
[[nodiscard]] Contents readAlerts(std::string_view body, const Harmless& harmless);
[[nodiscard]] Contents readNetwork(std::string_view body, const Harmless& harmless);
[[nodiscard]] Contents readInventory(std::string_view body, const Harmless& harmless);

}  // namespace quillmark::doctor
