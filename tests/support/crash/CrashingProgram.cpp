// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Crashes in a named function, with core dumps disabled as in the panel.

#include <csignal>

#include <sys/resource.h>

[[gnu::noinline]] static int readThrough(const volatile int* address) { return *address; }

int main(int argc, char* /*argv*/[]) {
  const rlimit none{};
  setrlimit(RLIMIT_CORE, &none);
  const int value = readThrough(argc > 1 ? &argc : nullptr);
  return value;
}
