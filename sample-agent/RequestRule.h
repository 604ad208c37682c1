// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>
#include <vector>

#include "AnswerBodies.h"

namespace quillmark::sample {

/// The parts of a request that decide its answer.
struct Request {
  std::string_view method;
  std::string_view target;
  std::vector<std::string_view> hosts;   ///< every Host field
  std::vector<std::string_view> tokens;  ///< every X-Agent-Token field
  bool hasBody = false;
};

/// An answer; its strings are literals or point into the bodies.
struct Answer {
  unsigned status = 200;
  std::string_view body;       ///< JSON
  std::string_view fieldName;  ///< a header field that the status requires, or empty
  std::string_view fieldValue;
};

/// Checks in this order and answers by the first that applies: 400 unless there is
/// exactly one Host field, 421 for a foreign host, 401 unless there is exactly one
/// token and it is right, 404 for an unknown path (the query is ignored), 405 for a
/// method other than GET, 413 for a request with a body; else 200 with the path's
/// body.
///
/// The host is checked before the token, so that a web page under its own domain
/// name cannot even learn whether its token is right. The time of the token's
/// comparison depends only on the token's length.
[[nodiscard]] Answer answerTo(const Request& request, std::string_view token,
                              const AnswerBodies& bodies);

// The answers to bytes that are no valid request.
[[nodiscard]] Answer malformedAnswer();
[[nodiscard]] Answer headerTooLargeAnswer();

}  // namespace quillmark::sample
