// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "AgentQuery.h"
#include "Contents.h"
#include "Finding.h"
#include "PortCheck.h"
#include "TextSanitizer.h"

namespace quillmark::doctor {

/// One of the panel's requests.
struct Endpoint {
  const char* check;
  std::string_view path;
  Contents (*read)(std::string_view body, const TextSanitizer& sanitize);
  const char* shownName;  ///< name of what the panel shows from it
};

/// The result of one request.
struct Verdict {
  Finding finding;
  std::optional<std::string> status;  ///< the agent's status text, if the endpoint has it
  std::string reason;  ///< why the panel shows nothing of the answer, as a clause; else empty
};

/// What to report of an endpoint to which no request was sent. `why` is a clause.
[[nodiscard]] Finding notAsked(const Endpoint& endpoint, const std::string& why);
/// Judges the answer to a request as the panel would: what it shows, or why nothing.
[[nodiscard]] Verdict judge(const Endpoint& endpoint, const QueryResult& query, const Port& port,
                            const TextSanitizer& sanitize);

}  // namespace quillmark::doctor
