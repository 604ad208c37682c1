// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>

#include "viewmodel/FormatDate.h"

// Formats each argument on a line of its own: a process reads its locale once,
// so that each locale and time zone needs a process of its own.
int main(int argc, char* argv[]) {
  for (int i = 1; i < argc; ++i) {
    std::puts(qUtf8Printable(quillmark::formatDate(QString::fromUtf8(argv[i]))));
  }
}
