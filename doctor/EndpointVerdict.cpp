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

struct Explained {
  const char* fact;
  const char* words;
};

Explained explained(HttpFailure failure) {
  switch (failure) {
    case HttpFailure::notConnected:
      return {"not connected", "no connection"};
    case HttpFailure::timedOut:
      return {"silent", "no answer"};
    case HttpFailure::brokenOff:
      return {"broken off", "the connection ended before the answer did"};
    case HttpFailure::malformed:
      return {"malformed", "what answers speaks no HTTP"};
    case HttpFailure::tooLarge:
      break;
  }
  return {"too large", "the answer is larger than the panel takes"};
}

/// Where to begin when the answer is none of an agent.
std::string otherwise(const Port& port, const std::string& step) {
  return port.stranger ? "End process " + std::to_string(*port.stranger) +
                             ", which holds the agent's port, and start the agent."
                       : step;
}

Verdict begun(const Endpoint& endpoint) {
  Verdict verdict;
  verdict.finding.check = endpoint.check;
  verdict.finding.facts["path"] = std::string(endpoint.path);
  verdict.finding.text = std::string(endpoint.path) + ": ";
  return verdict;
}

class EndpointJudge final {
 public:
  EndpointJudge(const Endpoint& endpoint, const Port& port, const Harmless& harmless)
      : endpoint_(endpoint), port_(port), harmless_(harmless), verdict_(begun(endpoint)) {}

  [[nodiscard]] Verdict operator()(const Asked& asked) {
    verdict_.finding.facts["milliseconds"] = asked.took.count();
    if (!asked.result) {
      const auto patience = std::chrono::duration_cast<std::chrono::seconds>(HttpLimits().time);
      verdict_.finding.facts["milliseconds"] = nullptr;
      fail("silent",
           "no whole answer within " + std::to_string(askingTime.count()) +
               " s; the panel would wait for " + std::to_string(patience.count()) + " s",
           otherwise(port_, "Look into the agent's log (" +
                                harmless_(homeDirectory() + std::string(agentLogInHome)) +
                                ") and start the agent again."));
    } else if (!*asked.result) {
      const auto [fact, words] = explained(asked.result->error());
      const bool isDown = asked.result->error() == HttpFailure::notConnected;
      fail(fact, words,
           isDown ? startAgentStep : otherwise(port_, "Mend or replace the agent: see its log."));
    } else {
      answered(**asked.result, asked.took);
    }
    return std::move(verdict_);
  }

 private:
  void fail(std::string_view fact, const std::string& words, const std::string& step) {
    verdict_.finding.facts["failure"] = fact;
    verdict_.finding.text += words;
    verdict_.finding.mark = Mark::wrong;
    verdict_.finding.step = step;
    verdict_.reason = std::string(endpoint_.path) + " brings nothing to show (" + words + ')';
  }

  void answered(const HttpAnswer& answer, std::chrono::milliseconds took) {
    verdict_.finding.facts["http_status"] = answer.status;
    verdict_.finding.facts["bytes"] = answer.body.size();
    verdict_.finding.text += "HTTP " + std::to_string(answer.status) + ", " +
                             counted(answer.body.size(), "byte") + ", " +
                             std::to_string(took.count()) + " ms: ";
    const auto contents = endpoint_.read(answer.body, harmless_);
    if (contents.error) {
      refused(*contents.error, answer.status);
      return;
    }
    verdict_.status = contents.status;
    verdict_.finding.facts["entries"] = contents.entries;
    verdict_.finding.mark = contents.mark;
    verdict_.finding.text += contents.summary;
    if (answer.status != httpOk) {
      verdict_.finding.say(Mark::note,
                           "shown all the same, the panel does not look at the HTTP status");
    }
  }

  void refused(const DecodeError& error, unsigned httpStatus) {
    const auto path = harmless_(error.path);
    const auto detail = harmless_(error.detail);
    verdict_.finding.facts["failure_path"] = path;
    verdict_.finding.facts["failure_detail"] = detail;
    const auto fault = (path.empty() ? "the body" : path) + ": " + detail;
    const auto kind = nameOf(error.kind);
    fail(kind, fault + " (" + std::string(kind) + ')', stepAfter(httpStatus, fault));
    if (httpStatus != httpOk) {
      verdict_.reason = std::string(endpoint_.path) + " brings nothing to show (HTTP " +
                        std::to_string(httpStatus) + ')';
    }
  }

  [[nodiscard]] std::string stepAfter(unsigned httpStatus, const std::string& fault) const {
    if (httpStatus == httpUnauthorized || httpStatus == httpForbidden) {
      return otherwise(port_,
                       "The agent refuses this token: run the agent as this user, or let its token "
                       "lie where the panel looks; then start the panel again.");
    }
    return otherwise(
        port_, "Mend the agent's answer to " + std::string(endpoint_.path) + ": " + fault + ".");
  }

  const Endpoint& endpoint_;
  const Port& port_;
  const Harmless& harmless_;
  Verdict verdict_;
};

}  // namespace

Verdict notAsked(const Endpoint& endpoint, const std::string& why) {
  auto verdict = begun(endpoint);
  verdict.finding.say(Mark::note, "not asked, because " + why);
  verdict.reason = why;
  return verdict;
}

Verdict judge(const Endpoint& endpoint, const Asked& asked, const Port& port,
              const Harmless& harmless) {
  return EndpointJudge(endpoint, port, harmless)(asked);
}

}  // namespace quillmark::doctor
