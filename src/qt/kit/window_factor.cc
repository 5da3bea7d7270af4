// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/window_factor.h"

#include <QWidget>

#include "qt/kit/look.h"

namespace vmod17 {
namespace {

constexpr double kTextOfMessages = 14;

}  // namespace

bool SetFactor(QWidget& window, double factor) {
  const QFont type = look::Type(kTextOfMessages * factor, look::Weight::kNormal);
  if (window.font() == type) return false;
  window.setFont(type);
  return true;
}

double FactorOf(const QWidget& window) { return window.font().pixelSize() / kTextOfMessages; }

}  // namespace vmod17
