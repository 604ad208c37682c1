// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "EndpointCheck.h"

#include <string_view>

#include "Asking.h"
#include "Contents.h"
#include "agentctl/AgentProcess.h"
#include "client/AgentRequest.h"
#include "platform/HomeDirectory.h"

namespace quillmark::doctor {
namespace {

struct Endpoint {
  const char* check;
  std::string_view path;
  Contents (*read)(std::string_view body, const Harmless& harmless);
  const char* shownAs;
};

constexpr Endpoint endpoints[] = {{"status", statusPath, readStatus, "status"},
                                  {"alerts", alertsPath, readAlerts, "alerts"},
                                  {"network", networkPath, readNetwork, "connections"},
                                  {"inventory", inventoryPath, readInventory, "inventory"}};

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
    case HttpFailure::silent:
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

const char* nameOf(DecodeFailure kind) {
  switch (kind) {
    case DecodeFailure::keyNotFound:
      return "key not found";
    case DecodeFailure::valueNotFound:
      return "value not found";
    case DecodeFailure::typeMismatch:
      return "type mismatch";
    case DecodeFailure::dataCorrupted:
      break;
  }
  return "data corrupted";
}

/// Where to begin when the answer is none of an agent.
std::string otherwise(const Port& port, const std::string& step) {
  return port.stranger ? "End process " + std::to_string(*port.stranger) +
                             ", which holds the agent's port, and start the agent."
                       : step;
}

class Judge final {
 public:
  Judge(const Endpoint& endpoint, const Port& port, const Harmless& harmless)
      : endpoint_(endpoint), port_(port), harmless_(harmless) {
    finding.check = endpoint.check;
    finding.facts["path"] = std::string(endpoint.path);
    finding.text = std::string(endpoint.path) + ": ";
  }

  void notAsked(const std::string& why) {
    finding.text += "not asked, because " + why;
    finding.mark = Mark::note;
    reason = why;
  }

  void asked(const Asked& asked) {
    finding.facts["milliseconds"] = asked.took.count();
    if (!asked.unsent.empty()) {
      fail("cannot be sent", "the token is too long to be sent: " + harmless_(asked.unsent),
           "Remove the token file and start the agent again, which makes a new token.");
    } else if (!asked.result) {
      const auto seconds = std::to_string(askingTime.count());
      finding.facts["milliseconds"] = nullptr;
      fail("silent",
           "no whole answer within " + seconds +
               " s; the panel would go on waiting until nothing comes for 60 s",
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
  }

  Finding finding;
  std::optional<std::string> status;
  std::string reason;  ///< why the panel shows nothing; empty when it does

 private:
  void fail(const char* fact, const std::string& words, const std::string& step) {
    finding.facts["failure"] = fact;
    finding.text += words;
    finding.mark = Mark::wrong;
    finding.step = step;
    reason = std::string(endpoint_.path) + " brings nothing to show (" + words + ')';
  }

  void answered(const HttpAnswer& answer, std::chrono::milliseconds took) {
    finding.facts["http_status"] = answer.status;
    finding.facts["bytes"] = answer.body.size();
    finding.text += "HTTP " + std::to_string(answer.status) + ", " +
                    counted(answer.body.size(), "byte") + ", " + std::to_string(took.count()) +
                    " ms: ";
    const auto contents = endpoint_.read(answer.body, harmless_);
    if (contents.error) {
      refused(*contents.error, answer.status);
      return;
    }
    status = contents.status;
    finding.facts["entries"] = contents.entries;
    finding.mark = contents.mark;
    finding.text += contents.summary;
    if (answer.status != httpOk) {
      finding.say(Mark::note, "shown all the same, the panel does not look at the HTTP status");
    }
  }

  void refused(const DecodeError& error, unsigned httpStatus) {
    const auto path = harmless_(error.path);
    const auto detail = harmless_(error.detail);
    finding.facts["failure_path"] = path;
    finding.facts["failure_detail"] = detail;
    const auto fault = (path.empty() ? "the body" : path) + ": " + detail;
    fail(nameOf(error.kind), fault + " (" + nameOf(error.kind) + ')', stepAfter(httpStatus, fault));
    if (httpStatus != httpOk) {
      reason = std::string(endpoint_.path) + " brings nothing to show (HTTP " +
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
};

}  // namespace

Shown checkEndpoints(Findings& findings, const TokenInUse& inUse, const Port& port,
                     const Harmless& harmless) {
  std::vector<std::string_view> paths;
  for (const auto& endpoint : endpoints) {
    paths.push_back(endpoint.path);
  }
  const auto all = inUse.token ? askAll(*inUse.token, paths) : std::vector<Asked>(paths.size());

  Shown shown;
  for (std::size_t i = 0; i < paths.size(); ++i) {
    Judge judge(endpoints[i], port, harmless);
    inUse.token ? judge.asked(all[i]) : judge.notAsked(inUse.refusal);
    if (endpoints[i].path == statusPath) {
      shown.status = judge.status;
      shown.offlineBecause = judge.reason;
    } else if (!judge.reason.empty()) {
      shown.empty.emplace_back(endpoints[i].shownAs);
    }
    findings.push_back(std::move(judge.finding));
  }
  return shown;
}

}  // namespace quillmark::doctor
