// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Uuid.h"

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

namespace quillmark {

Uuid randomUuid() {
  thread_local boost::uuids::random_generator generate;
  return generate();
}

std::string upperCaseText(const Uuid& uuid) {
  return boost::algorithm::to_upper_copy(boost::uuids::to_string(uuid));
}

}  // namespace quillmark
