// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <boost/json/object.hpp>

#include "Finding.h"
#include "TextSanitizer.h"
#include "model/DecodeError.h"

namespace quillmark::doctor {

/// What the panel reads from one response body.
struct Contents {
  std::optional<DecodeError> error;   ///< set when the panel shows nothing of the body
  std::string summary;                ///< as text, such as "2 alerts"
  std::optional<std::string> status;  ///< the agent's status text, sanitized
  Mark mark = Mark::ok;               ///< of the summary; not for an error
  boost::json::object entries;        ///< number of entries of each kind
};

// One function for each endpoint of the agent.
[[nodiscard]] Contents readStatus(std::string_view body, const TextSanitizer& sanitize);
[[nodiscard]] Contents readAlerts(std::string_view body, const TextSanitizer& sanitize);
[[nodiscard]] Contents readNetwork(std::string_view body, const TextSanitizer& sanitize);
[[nodiscard]] Contents readInventory(std::string_view body, const TextSanitizer& sanitize);

}  // namespace quillmark::doctor
