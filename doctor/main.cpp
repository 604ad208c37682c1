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
#include "Options.h"
#include "Output.h"

namespace {

using namespace quillmark::doctor;

enum ExitCode : int { somethingWrong = 1, wrongUsage = 2 };

// As often as the panel asks.
constexpr timespec pause{5, 0};

Colour colourForOutput() {
  const char* const terminal = std::getenv("TERM");
  const bool isWanted = isatty(STDOUT_FILENO) != 0 && std::getenv("NO_COLOR") == nullptr &&
                        terminal != nullptr && std::string_view(terminal) != "dumb";
  return isWanted ? Colour::terminal : Colour::none;
}

int showRound(Options::Format format, Colour colour) {
  const auto report = examine();
  std::cout << (format == Options::Format::json ? asJson(report) : asText(report, colour))
            << std::flush;
  return exitCode(report);
}

/// Until SIGINT or SIGTERM, which lets a round that has begun come to its end.
int watch(Options::Format format, Colour colour) {
  sigset_t ending{};
  sigemptyset(&ending);
  sigaddset(&ending, SIGINT);
  sigaddset(&ending, SIGTERM);
  sigprocmask(SIG_BLOCK, &ending, nullptr);
  for (;;) {
    const int code = showRound(format, colour);
    if (!std::cout || sigtimedwait(&ending, nullptr, &pause) > 0) {
      return code;
    }
    if (format == Options::Format::text) {
      std::cout << '\n';
    }
  }
}

int run(const Options& options) {
  switch (options.action) {
    case Options::Action::help:
      std::cout << usage();
      return 0;
    case Options::Action::version:
      std::cout << "quillmark-doctor " QUILLMARK_VERSION "\n";
      return 0;
    case Options::Action::examine:
      break;
  }
  const auto colour = colourForOutput();
  const auto repetition = options.repetition;
  return repetition == Options::Repetition::watch ? watch(options.format, colour)
                                                  : showRound(options.format, colour);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const auto options = parseOptions(argc, argv);
    if (!options) {
      return wrongUsage;
    }
    const int code = run(*options);
    return std::cout.flush() ? code : somethingWrong;
  } catch (const std::exception& error) {
    std::cerr << "quillmark-doctor: " << error.what() << std::endl;
    return somethingWrong;
  }
}
