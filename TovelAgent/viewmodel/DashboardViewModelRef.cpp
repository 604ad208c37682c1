// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DashboardViewModelRef.h"

#include <initializer_list>

namespace quillmark {

DashboardViewModelRef::DashboardViewModelRef(QObject* parent)
    : QObject(parent), model_(DashboardViewModel::create()) {
  // QML must not take ownership of the model or of the lists inside it.
  for (QObject* const object :
       std::initializer_list<QObject*>{model_.get(), model_->alertRows(), model_->connectionRows(),
                                       model_->appRows(), model_->cardRows()}) {
    QQmlEngine::setObjectOwnership(object, QQmlEngine::CppOwnership);
  }
}

}  // namespace quillmark
