// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>
#include <vector>

#include "Snapshot.h"

namespace quillmark::sample {

/// What the rule looks at of a request.
struct Request {
  std::string_view method;
  std::string_view target;
  std::vector<std::string_view> hosts;   ///< every Host field
  std::vector<std::string_view> tokens;  ///< every X-Agent-Token field
  enum class Body { absent, present } body = Body::absent;
};

/// What to answer; the texts are literals or lie in the snapshot.
struct Answer {
  unsigned status = 200;
  std::string_view body;       ///< JSON
  std::string_view fieldName;  ///< a header field that the status asks for, or empty
  std::string_view fieldValue;
};

/// Decides in this order, the first that applies: 400 for anything but one Host
/// field, 421 for a foreign host, 401 for anything but the one right token, 404
/// for an unknown path (a query is not looked at), 405 for another method than
/// GET, 413 for a request with a body; else 200 with the path's body.
///
/// The host comes before all, so that a web page under a name of its own cannot
/// even learn whether its token is right. How long the comparison of the token
/// takes depends on its length only.
[[nodiscard]] Answer answerTo(const Request& request, std::string_view token,
                              const Snapshot& snapshot);

// What is answered to bytes that make no request.
[[nodiscard]] Answer malformedAnswer();
[[nodiscard]] Answer headerTooLargeAnswer();

}  // namespace quillmark::sample
