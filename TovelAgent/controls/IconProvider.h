// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickImageProvider>

namespace quillmark {

/// Draws icons by their symbolic names. The id is the name followed by the colour, as in
/// `gear#0b5fd9`. The image has the requested size in device pixels, or the drawing's own
/// size. For an unknown name the image is null, and QML prints a warning. Any thread.
class IconProvider final : public QQuickImageProvider {
 public:
  IconProvider() : QQuickImageProvider(Image) {}

  [[nodiscard]] QImage requestImage(const QString& id, QSize* size,
                                    const QSize& requestedSize) override;
};

}  // namespace quillmark
