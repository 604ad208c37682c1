// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <tuple>

#include "model/Field.h"
#include "platform/Uuid.h"

namespace quillmark {

/// One finding of the agent; an element of `AlertsResponse::alerts`.
struct ThreatAlert {
  std::string alert_type;                  ///< free text, the row's headline
  std::string severity;                    ///< free text; the view model interprets it
  std::optional<std::string> title;        ///< free text
  std::optional<std::string> description;  ///< free text
  std::optional<std::string> file_path;    ///< the affected file
  std::optional<std::string> timestamp;    ///< when it was found, in the agent's format

  static constexpr auto fields = std::tuple{Field{"alert_type", &ThreatAlert::alert_type},
                                            Field{"severity", &ThreatAlert::severity},
                                            Field{"title", &ThreatAlert::title},
                                            Field{"description", &ThreatAlert::description},
                                            Field{"file_path", &ThreatAlert::file_path},
                                            Field{"timestamp", &ThreatAlert::timestamp}};

  /// A new random id at every call, see `InstalledApp::id`, as upper-case text. Any thread.
  [[nodiscard]] std::string id() const { return upperCaseText(randomUuid()); }

  friend bool operator==(const ThreatAlert&, const ThreatAlert&) = default;
};

}  // namespace quillmark
