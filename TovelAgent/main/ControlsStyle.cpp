// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/ControlsStyle.h"

#include <QByteArray>

namespace quillmark {

void setControlsStyle() {
  // Not QQuickStyle: it would load one more library at each start, for a dialog that
  // few users open.
  qputenv("QT_QUICK_CONTROLS_STYLE", "Fusion");
  qunsetenv("QT_QUICK_CONTROLS_CONF");
}

}  // namespace quillmark
