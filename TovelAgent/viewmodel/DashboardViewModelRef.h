// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QObject>
#include <QQmlEngine>

#include "viewmodel/DashboardViewModel.h"

namespace quillmark {

/// A view's hold on a view model of its own: made with the view, given up with
/// it. The model itself lives on once it polls. UI thread only.
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
