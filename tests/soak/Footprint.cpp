// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "soak/Footprint.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace quillmark::test {
namespace {

long entries(const char* folder) {
  const std::filesystem::directory_iterator all(folder);
  return std::distance(begin(all), end(all));
}

long statusField(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name + ':')) {
      return std::stol(line.substr(name.size() + 1));
    }
  }
  return -1;
}

}  // namespace

Footprint Footprint::now() {
  return {.residentKib = statusField("VmRSS"),
          .descriptors = entries("/proc/self/fd"),
          .threads = entries("/proc/self/task")};
}

bool report(const std::string& what, long polls, double seconds, const Footprint& before,
            const Footprint& after, long allowedKib) {
  const long grown = after.residentKib - before.residentKib;
  const long descriptors = after.descriptors - before.descriptors;
  const long threads = after.threads - before.threads;
  std::printf(
      "{\"what\":\"%s\",\"polls\":%ld,\"seconds\":%.1f,\"resident_kib\":%ld,\"grown_kib\":%ld,"
      "\"allowed_kib\":%ld,\"descriptors\":%ld,\"threads\":%ld}\n",
      what.c_str(), polls, seconds, after.residentKib, grown, allowedKib, descriptors, threads);
  return grown <= allowedKib && descriptors <= 0 && threads <= 0;
}

}  // namespace quillmark::test
