// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "PortCheck.h"

#include <algorithm>
#include <vector>

#include "Program.h"
#include "client/AgentUrl.h"
#include "procfs/Processes.h"
#include "procfs/Sockets.h"

namespace quillmark::doctor {
namespace {

/// Whether a connection to `server` would reach `socket`.
bool answersAt(const Socket& socket, const boost::asio::ip::tcp::endpoint& server) {
  const auto address = server.address().to_string();
  const auto& local = socket.local.address;
  return socket.transport == Transport::tcp && isListening(socket) &&
         socket.local.port == server.port() &&
         (local == address || local == "::ffff:" + address ||
          reachOf(socket) == Reach::allInterfaces);
}

void addOwner(Finding& finding, Port& port, const Process& owner, const TextSanitizer& sanitize) {
  const auto process = readProcessCommand(procRoot, owner.pid);
  const auto command = sanitize(process.text);
  finding.facts["pid"] = owner.pid;
  finding.facts["command"] = command;
  const auto who = "process " + std::to_string(owner.pid);
  if (kindOf(process) == Kind::agent) {
    finding.add(Mark::ok, who + " has it: " + command);
    return;
  }
  port.otherProgram = owner.pid;
  finding.add(Mark::note,
              who + " has it, which is no agent by its name, and gets the token: " + command);
}

}  // namespace

Port checkPort(Findings& findings, const TextSanitizer& sanitize) {
  Port port;
  Finding finding;
  finding.check = "port";
  const auto server = requestTo(agentBaseUrl).value().server;
  const std::string place = server.address().to_string() + ':' + std::to_string(server.port());

  const auto sockets = readSockets(procRoot);
  const auto socket = std::find_if(sockets.begin(), sockets.end(),
                                   [&](const Socket& each) { return answersAt(each, server); });
  port.isOpen = socket != sockets.end();
  finding.facts["open"] = port.isOpen;
  if (!port.isOpen) {
    finding.add(Mark::wrong, place + ": nothing listens", startAgentStep);
    findings.push_back(std::move(finding));
    return port;
  }

  finding.text = place + ": open";
  const auto processes = readProcesses(procRoot);
  const auto owners = socketOwners(processes);
  if (const auto owner = owners.find(socket->inode); owner != owners.end()) {
    addOwner(finding, port, *owner->second, sanitize);
  } else {
    finding.add(Mark::note, "only root or its owner may see which process has it");
  }
  if (reachOf(*socket) == Reach::allInterfaces) {
    finding.add(Mark::note, "other machines can reach it, too",
                "Let the agent listen on " + server.address().to_string() + " alone.");
  }
  findings.push_back(std::move(finding));
  return port;
}

}  // namespace quillmark::doctor
