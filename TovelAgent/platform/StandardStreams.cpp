// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

namespace quillmark {

void openClosedStandardStreams() {
  // The system always gives the lowest free descriptor.
  int descriptor = -1;
  do {
    descriptor = open("/dev/null", O_RDWR);
  } while (descriptor >= 0 && descriptor <= STDERR_FILENO);
  if (descriptor >= 0) {
    close(descriptor);
  }
}

}  // namespace quillmark
