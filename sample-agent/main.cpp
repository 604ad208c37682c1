// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <csignal>
#include <exception>
#include <iostream>
#include <memory>
#include <string>
#include <utility>

#include <boost/asio/io_context.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/signal_set.hpp>

#include <unistd.h>

#include "AgentAddress.h"
#include "AgentConfig.h"
#include "ScanLoop.h"
#include "Scanner.h"
#include "Server.h"
#include "Token.h"
#include "platform/CommandLine.h"
#include "platform/HomeDirectory.h"
#include "platform/ProcessLimits.h"
#include "platform/StandardStreams.h"
#include "scan/SystemPaths.h"

namespace {

using namespace quillmark::sample;

enum ExitCode : int { cleanEnd = 0, cannotRun = 1, badConfiguration = 2 };

constexpr std::chrono::seconds scanInterval(60);

const quillmark::CommandLineRules commandLineRules{
    .program = "tovel-agent",
    .version = QUILLMARK_VERSION,
    .help =
        "Usage: tovel-agent [OPTION]\n"
        "\n"
        "Serves what it sees on this machine to the Quillmark control panel until it is\n"
        "stopped. A sample, not the product's agent: it only reads.\n"
        "\n"
        "  -h, --help      print this and end\n"
        "  -V, --version   print the version and end\n",
    .flags = {},
    .valueOptions = {}};

int fail(ExitCode code, const std::string& reason) {
  std::cerr << reason << std::endl;
  return code;
}

int run() {
  const std::string home = quillmark::homeDirectory();
  const auto config = loadConfig(configPaths(home));
  if (!config) {
    return fail(badConfiguration, config.error().text);
  }

  // Open the port before the token: of two agents started at once, only the one that
  // will serve creates a token.
  boost::asio::io_context context(1);
  auto acceptor = listenForClients(context);
  const std::string address = std::string(agentAddress) + ':' + std::to_string(agentPort);
  if (!acceptor) {
    return fail(cannotRun, address + ": " + acceptor.error().message());
  }
  const std::string path = tokenPath(geteuid(), home);
  auto token = loadOrMakeToken(path);
  if (!token) {
    return fail(cannotRun, token.error().text);
  }

  boost::asio::signal_set signals(context, SIGINT, SIGTERM);
  signals.async_wait([&](const auto&, int) { context.stop(); });
  std::cout << "listening on " << address << ", token in " << path << std::endl;

  Server server(std::move(*acceptor), std::move(*token));
  Scanner scanner(systemPaths(home), *config);
  auto publish = [&](const std::shared_ptr<const AnswerBodies>& bodies) {
    boost::asio::post(context, [&server, bodies] { server.publish(bodies); });
  };
  const ScanLoop scanLoop(scanner, scanInterval, std::move(publish), std::cerr);
  context.run();
  return cleanEnd;
}

}  // namespace

int main(int argc, char* argv[]) {
  quillmark::openClosedStandardStreams();
  quillmark::disableCoreDumps();
  try {
    const auto commandLine = quillmark::readCommandLine(argc, argv, commandLineRules);
    if (commandLine.exitCode) {
      return *commandLine.exitCode;
    }
    return run();
  } catch (const std::exception& error) {
    return fail(cannotRun, error.what());
  }
}
