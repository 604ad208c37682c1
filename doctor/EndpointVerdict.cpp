// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "EndpointVerdict.h"

#include <chrono>
#include <string_view>
#include <utility>

#include "agentctl/AgentProcess.h"
#include "platform/HomeDirectory.h"

namespace quillmark::doctor {
namespace {

constexpr unsigned httpOk = 200;
constexpr unsigned httpUnauthorized = 401;
constexpr unsigned httpForbidden = 403;

struct FailureText {
  const char* fact;
  const char* words;
};

FailureText textOf(HttpFailure failure) {
  switch (failure) {
    case HttpFailure::notConnected:
      return {"not connected", "no connection"};
    case HttpFailure::timedOut:
      return {"silent", "no answer"};
    case HttpFailure::connectionLost:
      return {"broken off", "the connection ended before the answer did"};
    case HttpFailure::malformed:
      return {"malformed", "the answer is not HTTP"};
    case HttpFailure::tooLarge:
      break;
  }
  return {"too large", "the answer is larger than the panel takes"};
}

Verdict newVerdict(const Endpoint& endpoint) {
  Verdict verdict;
  verdict.finding.check = endpoint.check;
  verdict.finding.facts["path"] = std::string(endpoint.path);
  verdict.finding.text = std::string(endpoint.path) + ": ";
  return verdict;
}

class EndpointJudge final {
 public:
  EndpointJudge(const Endpoint& endpoint, const Port& port, const TextSanitizer& sanitize)
      : endpoint_(endpoint), port_(port), sanitize_(sanitize), verdict_(newVerdict(endpoint)) {}

  [[nodiscard]] Verdict operator()(const QueryResult& query) {
    verdict_.finding.facts["milliseconds"] = query.duration.count();
    if (!query.result) {
      const auto panelLimit = std::chrono::duration_cast<std::chrono::seconds>(HttpLimits().time);
      verdict_.finding.facts["milliseconds"] = nullptr;
      fail("silent",
           "no whole answer within " + std::to_string(queryTimeout.count()) +
               " s; the panel would wait for " + std::to_string(panelLimit.count()) + " s",
           stepForAnswer("Look into the agent's log (" +
                         sanitize_(homeDirectory() + std::string(agentLogInHome)) +
                         ") and start the agent again."));
    } else if (!*query.result) {
      const auto [fact, words] = textOf(query.result->error());
      const bool isDown = query.result->error() == HttpFailure::notConnected;
      fail(fact, words,
           isDown ? startAgentStep : stepForAnswer("Fix or replace the agent: see its log."));
    } else {
      judgeAnswer(**query.result, query.duration);
    }
    return std::move(verdict_);
  }

 private:
  /// The step after a bad answer: `step`, unless another program holds the port.
  [[nodiscard]] std::string stepForAnswer(const std::string& step) const {
    return port_.otherProgram ? "End process " + std::to_string(*port_.otherProgram) +
                                    ", which holds the agent's port, and start the agent."
                              : step;
  }

  void fail(std::string_view fact, const std::string& words, const std::string& step) {
    verdict_.finding.facts["failure"] = fact;
    verdict_.finding.text += words;
    verdict_.finding.mark = Mark::wrong;
    verdict_.finding.step = step;
    verdict_.reason = std::string(endpoint_.path) + " gives nothing to show (" + words + ')';
  }

  void judgeAnswer(const HttpAnswer& answer, std::chrono::milliseconds duration) {
    verdict_.finding.facts["http_status"] = answer.status;
    verdict_.finding.facts["bytes"] = answer.body.size();
    verdict_.finding.text += "HTTP " + std::to_string(answer.status) + ", " +
                             counted(answer.body.size(), "byte") + ", " +
                             std::to_string(duration.count()) + " ms: ";
    const auto contents = endpoint_.read(answer.body, sanitize_);
    if (contents.error) {
      judgeDecodeError(*contents.error, answer.status);
      return;
    }
    verdict_.status = contents.status;
    verdict_.finding.facts["entries"] = contents.entries;
    verdict_.finding.mark = contents.mark;
    verdict_.finding.text += contents.summary;
    if (answer.status != httpOk) {
      verdict_.finding.add(Mark::note, "shown anyway, the panel does not look at the HTTP status");
    }
  }

  void judgeDecodeError(const DecodeError& error, unsigned httpStatus) {
    const auto path = sanitize_(error.path);
    const auto detail = sanitize_(error.detail);
    verdict_.finding.facts["failure_path"] = path;
    verdict_.finding.facts["failure_detail"] = detail;
    const auto fault = (path.empty() ? "the body" : path) + ": " + detail;
    const auto kind = nameOf(error.kind);
    fail(kind, fault + " (" + std::string(kind) + ')', stepAfter(httpStatus, fault));
    if (httpStatus != httpOk) {
      verdict_.reason = std::string(endpoint_.path) + " gives nothing to show (HTTP " +
                        std::to_string(httpStatus) + ')';
    }
  }

  [[nodiscard]] std::string stepAfter(unsigned httpStatus, const std::string& fault) const {
    if (httpStatus == httpUnauthorized || httpStatus == httpForbidden) {
      return stepForAnswer(
          "The agent refuses this token: run the agent as this user, or put its token "
          "where the panel looks; then start the panel again.");
    }
    return stepForAnswer("Fix the agent's answer to " + std::string(endpoint_.path) + ": " + fault +
                         ".");
  }

  const Endpoint& endpoint_;
  const Port& port_;
  const TextSanitizer& sanitize_;
  Verdict verdict_;
};

}  // namespace

Finding notAsked(const Endpoint& endpoint, const std::string& why) {
  auto finding = newVerdict(endpoint).finding;
  finding.add(Mark::note, "not asked, because " + why);
  return finding;
}

Verdict judge(const Endpoint& endpoint, const QueryResult& query, const Port& port,
              const TextSanitizer& sanitize) {
  return EndpointJudge(endpoint, port, sanitize)(query);
}

}  // namespace quillmark::doctor
