// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QPrinter>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "ports/event_loop.h"
#include "ports/printer.h"

class QPagedPaintDevice;

namespace vmod17 {

class PictureSource;
class QtEventLoop;

/// Where pages can go.
struct PrintTargets {
  /// The system's default printer; null where there is none.
  std::function<std::unique_ptr<QPrinter>()> printer;
  /// For a file in the printer's place, the first that takes it. They are made where missing.
  std::vector<QString> folders;
  /// Date and time that the file is named after.
  std::function<DateTime()> now;
};

/// The default printer of this computer and the folders of its user.
PrintTargets SystemPrintTargets(const EventLoop& loop);

/// Draws a form anew in the resolution of the paper: type and lines as such, only the pictures of
/// the chords as pictures. Asks nothing and shows nothing.
class QtPrinter : public Printer {
 public:
  QtPrinter(QtEventLoop& loop, PictureSource& pictures, PrintTargets targets);

  void SetOrientation(Orientation orientation) override { orientation_ = orientation; }
  PrintResult PrintForm(Form& form) override;

 private:
  PrintResult PrintOn(QPrinter& printer, Form& form);
  PrintResult PrintIntoFile(Form& form);
  bool Draw(QPagedPaintDevice& device, Form& form);

  QtEventLoop& loop_;
  PictureSource& pictures_;
  PrintTargets targets_;
  Orientation orientation_ = Orientation::kPortrait;
};

}  // namespace vmod17
