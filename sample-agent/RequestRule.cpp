// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "RequestRule.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <locale>

#include <boost/algorithm/string/predicate.hpp>

#include "AgentAddress.h"

namespace quillmark::sample {
namespace {

bool isAgentHost(std::string_view host) {
  return std::any_of(std::begin(agentHosts), std::end(agentHosts), [&](std::string_view own) {
    return boost::algorithm::iequals(host, own, std::locale::classic());
  });
}

bool equalInConstantTime(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) {
    return false;
  }
  // Volatile keeps a compiler from leaving the loop at the first difference.
  volatile unsigned char difference = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    difference = static_cast<unsigned char>(difference | (a[i] ^ b[i]));
  }
  return difference == 0;
}

/// The body for `target`, or null.
const std::string* bodyOf(std::string_view target, const AnswerBodies& bodies) {
  const auto path = target.substr(0, target.find('?'));
  if (path == "/api/status") {
    return &bodies.status;
  }
  if (path == "/api/alerts") {
    return &bodies.alerts;
  }
  if (path == "/api/network") {
    return &bodies.network;
  }
  return path == "/api/inventory" ? &bodies.inventory : nullptr;
}

}  // namespace

Answer answerTo(const Request& request, std::string_view token, const AnswerBodies& bodies) {
  if (request.hosts.size() != 1) {
    return malformedAnswer();
  }
  if (!isAgentHost(request.hosts.front())) {
    return {421, R"({"error":"this host is not served here"})", {}, {}};
  }
  if (request.tokens.size() != 1 || !equalInConstantTime(request.tokens.front(), token)) {
    return {401, R"({"error":"the access token is missing or wrong"})", "WWW-Authenticate",
            "X-Agent-Token"};
  }
  const std::string* const body = bodyOf(request.target, bodies);
  if (body == nullptr) {
    return {404, R"({"error":"there is nothing at this path"})", {}, {}};
  }
  if (request.method != "GET") {
    return {405, R"({"error":"only GET is served"})", "Allow", "GET"};
  }
  if (request.hasBody) {
    return {413, R"({"error":"a request must have no body"})", {}, {}};
  }
  return {200, *body, {}, {}};
}

Answer malformedAnswer() { return {400, R"({"error":"the request is malformed"})", {}, {}}; }

Answer headerTooLargeAnswer() {
  return {431, R"({"error":"the request header is too large"})", {}, {}};
}

}  // namespace quillmark::sample
