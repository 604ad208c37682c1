// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Options.h"

#include <iostream>

#include <getopt.h>

namespace quillmark::doctor {
namespace {

constexpr option longOptions[] = {{"json", no_argument, nullptr, 'j'},
                                  {"watch", no_argument, nullptr, 'w'},
                                  {"help", no_argument, nullptr, 'h'},
                                  {"version", no_argument, nullptr, 'V'},
                                  {}};

bool apply(int letter, Options& options) {
  switch (letter) {
    case 'j':
      options.format = Options::Format::json;
      return true;
    case 'w':
      options.repetition = Options::Repetition::watch;
      return true;
    case 'h':
      options.action = Options::Action::help;
      return true;
    case 'V':
      options.action = Options::Action::version;
      return true;
    default:
      return false;
  }
}

}  // namespace

std::optional<Options> parseOptions(int argc, char** argv) {
  Options options;
  for (;;) {
    const int letter = getopt_long(argc, argv, "", longOptions, nullptr);
    if (letter == -1) {
      break;
    }
    if (!apply(letter, options)) {
      std::cerr << usage();
      return std::nullopt;
    }
  }
  if (optind < argc) {
    std::cerr << argv[0] << ": takes no arguments but options\n" << usage();
    return std::nullopt;
  }
  return options;
}

const char* usage() {
  return "Usage: quillmark-doctor [--json] [--watch]\n"
         "\n"
         "Tells what the Quillmark Agent panel would show on this machine, and why.\n"
         "Looks only; changes nothing. Run it as the user who runs the panel.\n"
         "\n"
         "  --json     one JSON object for each round instead of text\n"
         "  --watch    look again every 5 seconds until interrupted\n"
         "  --help     show this and end\n"
         "  --version  show the version and end\n"
         "\n"
         "Ends with 0 when all is well, 1 when something is wrong, 2 for a wrong option.\n";
}

}  // namespace quillmark::doctor
