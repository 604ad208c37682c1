// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include "viewmodel/FormatDate.h"

// Formats each argument on a separate line. A program, because a process reads its
// locale and time zone only once.
int main(int argc, char* argv[]) {
  for (int i = 1; i < argc; ++i) {
    std::puts(qUtf8Printable(quillmark::formatDate(QString::fromUtf8(argv[i]))));
  }
}
