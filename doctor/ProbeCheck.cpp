// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ProbeCheck.h"

#include <algorithm>
#include <string>
#include <vector>

#include <unistd.h>

#include "Program.h"
#include "agentctl/AgentProcess.h"

namespace quillmark::doctor {
namespace {

std::vector<ProcessCommand> matches() {
  auto found = readProcessCommands(procRoot);
  std::erase_if(found, [](const ProcessCommand& process) {
    return process.pid == getpid() || process.text.find(agentFileName) == std::string::npos;
  });
  return found;
}

Finding noMatch(const Port& port) {
  Finding finding;
  finding.check = "probe";
  finding.add(Mark::note, std::string("finds no agent, so the Settings tab says \"not running\"") +
                              (port.isOpen ? ", though something answers" : ""));
  return finding;
}

const char* factOf(Kind kind) {
  switch (kind) {
    case Kind::agent:
      return "agent";
    case Kind::starter:
      return "starter";
    case Kind::ended:
      return "ended";
    case Kind::other:
      break;
  }
  return "other";
}

class ProcessJudge final {
 public:
  ProcessJudge(bool anyAgent, const TextSanitizer& sanitize)
      : anyAgent_(anyAgent), sanitize_(sanitize) {}

  Finding operator()(const ProcessCommand& process) {
    Finding finding;
    finding.check = "probe";
    const auto who = "process " + std::to_string(process.pid);
    const auto command = sanitize_(process.text);
    const auto kind = kindOf(process);
    finding.facts["pid"] = process.pid;
    finding.facts["command"] = command;
    finding.facts["kind"] = factOf(kind);
    if (kind == Kind::agent && ++agents_ > 1) {
      finding.add(Mark::note, who + " is one more agent: " + command,
                  "End process " + std::to_string(process.pid) + ": one agent is enough.");
    } else if (kind == Kind::agent) {
      finding.add(Mark::ok, who + " is an agent: " + command);
    } else if (kind == Kind::starter) {
      finding.add(Mark::ok, who + " is the shell in which Start Agent started one: " + command);
    } else if (kind == Kind::ended) {
      finding.add(falseMatchMark(), who + " has ended and still counts as an agent: " + command,
                  "End the program that started process " + std::to_string(process.pid) +
                      " and does not wait for it.");
    } else {
      finding.add(falseMatchMark(),
                  who + " is no agent, but counts as one and Stop Agent would end it: " + command,
                  "Close process " + std::to_string(process.pid) +
                      ", or take the agent's name off its command line.");
    }
    return finding;
  }

 private:
  // While a real agent runs, the tab is right to say so: a false match is only a note.
  [[nodiscard]] Mark falseMatchMark() const { return anyAgent_ ? Mark::note : Mark::wrong; }

  bool anyAgent_;
  const TextSanitizer& sanitize_;
  int agents_ = 0;
};

}  // namespace

void checkProbe(Findings& findings, const Port& port, const TextSanitizer& sanitize) {
  const auto found = matches();
  if (found.empty()) {
    findings.push_back(noMatch(port));
    return;
  }
  const bool anyAgent = std::any_of(found.begin(), found.end(), [](const ProcessCommand& process) {
    return kindOf(process) == Kind::agent;
  });
  ProcessJudge judge(anyAgent, sanitize);
  for (const auto& process : found) {
    findings.push_back(judge(process));
  }
}

}  // namespace quillmark::doctor
