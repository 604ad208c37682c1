// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "EndpointCheck.h"
#include "Finding.h"
#include "PortCheck.h"

namespace quillmark::doctor {

[[nodiscard]] Conclusion conclude(const Findings& findings, const Shown& shown, const Port& port);

}  // namespace quillmark::doctor
