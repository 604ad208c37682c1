// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string_view>

#include <unistd.h>

#include "Examination.h"
#include "Output.h"
#include "platform/CommandLine.h"
#include "platform/ProcessLimits.h"
#include "platform/StandardStreams.h"

namespace {

using namespace quillmark::doctor;

enum class Format { text, json };

constexpr auto jsonFlag = "json";
constexpr auto watchFlag = "watch";

const quillmark::CommandLineRules commandLineRules{
    .program = "quillmark-doctor",
    .version = QUILLMARK_VERSION,
    .help =
        "Usage: quillmark-doctor [--json] [--watch]\n"
        "\n"
        "Tells what the Quillmark Agent panel would show on this machine, and why.\n"
        "Only reads; changes nothing. Run it as the user who runs the panel.\n"
        "\n"
        "      --json      one JSON object for each round instead of text\n"
        "      --watch     look again every 5 seconds until interrupted\n"
        "  -h, --help      print this and end\n"
        "  -V, --version   print the version and end\n"
        "\n"
        "Exits with 0 if nothing is wrong, 1 if something is wrong, 2 for a wrong option.\n",
    .flags = {jsonFlag, watchFlag},
    .valueOptions = {}};

// The panel's polling interval.
constexpr timespec pause{5, 0};

Colour colourForOutput() {
  const char* const terminal = std::getenv("TERM");
  const bool isWanted = isatty(STDOUT_FILENO) != 0 && std::getenv("NO_COLOR") == nullptr &&
                        terminal != nullptr && std::string_view(terminal) != "dumb";
  return isWanted ? Colour::terminal : Colour::none;
}

int showRound(Format format, Colour colour) {
  const auto report = examine();
  std::cout << (format == Format::json ? asJson(report) : asText(report, colour)) << std::flush;
  return exitCode(report);
}

/// Repeats until SIGINT or SIGTERM, or until output fails. A round that has begun is completed.
int watch(Format format, Colour colour) {
  sigset_t endSignals{};
  sigemptyset(&endSignals);
  sigaddset(&endSignals, SIGINT);
  sigaddset(&endSignals, SIGTERM);
  sigprocmask(SIG_BLOCK, &endSignals, nullptr);
  for (;;) {
    const int code = showRound(format, colour);
    if (!std::cout || sigtimedwait(&endSignals, nullptr, &pause) > 0) {
      return code;
    }
    if (format == Format::text) {
      std::cout << '\n';
    }
  }
}

int run(const quillmark::CommandLine& line) {
  if (line.exitCode) {
    return *line.exitCode;
  }
  const auto format = line.has(jsonFlag) ? Format::json : Format::text;
  const auto colour = colourForOutput();
  return line.has(watchFlag) ? watch(format, colour) : showRound(format, colour);
}

}  // namespace

int main(int argc, char** argv) {
  quillmark::openClosedStandardStreams();
  quillmark::disableCoreDumps();
  try {
    const int code = run(quillmark::readCommandLine(argc, argv, commandLineRules));
    return std::cout.flush() ? code : somethingWrong;
  } catch (const std::exception& error) {
    std::cerr << "quillmark-doctor: " << error.what() << std::endl;
    return somethingWrong;
  }
}
