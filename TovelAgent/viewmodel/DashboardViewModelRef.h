// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QObject>
#include <QQmlEngine>

#include "viewmodel/DashboardViewModel.h"

namespace quillmark {

/// A view's reference to its own view model, created and released with the view.
/// A model that has started to poll outlives the view. UI thread only.
class DashboardViewModelRef : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(quillmark::DashboardViewModel* viewModel READ viewModel CONSTANT)

 public:
  explicit DashboardViewModelRef(QObject* parent = nullptr);

  [[nodiscard]] DashboardViewModel* viewModel() const { return model_.get(); }

 private:
  const std::shared_ptr<DashboardViewModel> model_;
};

}  // namespace quillmark
