// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>

#include "module/program.h"
#include "qt/desk/qt_event_loop.h"
#include "qt/pictures/chord_pictures.h"
#include "qt/view/qt_view.h"
#include "shell/uniform_random.h"
#include "support/fake_platform.h"
#include "support/memory_host.h"
#include "support/memory_xml_document.h"
#include "support/recording_midi_output.h"

namespace vmod17 {

/// The real screens in a real window, on a silent output and a host in memory. A QApplication must
/// exist before it.
class WindowStage {
 protected:
  WindowStage() {
    loop_.after_event = [this] { view_.Refresh(); };
  }
  ~WindowStage() = default;

  void ToFirstScreen() {
    loop_.Deliver([this] { program_.Start(); });
    WaitUntil([this] { return program_.grd_einst()->visible; });
  }
  void ToSettings() {
    loop_.Deliver([this] { program_.grd_einst()->cmdOK.Press(); });
    WaitUntil([this] { return program_.einstellung1()->visible; });
  }
  void ToWorksheet() {
    loop_.Deliver([this] { program_.einstellung1()->cmdOK.Press(); });
    WaitUntil([this] { return program_.arbeitsblatt1() && program_.arbeitsblatt1()->visible; });
  }

  /// All that is due is painted, and the display server has it.
  static void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 1, 1);
  }

  static double Ms(const QElapsedTimer& clock) {
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
  }

  QtEventLoop loop_;
  ChordPictures pictures_;
  QtView view_{loop_, pictures_};
  FakeSystem system_;
  ScriptedMessageBox messages_;
  RecordingMidiOutput output_;
  UniformRandom random_;
  ScriptedFileDialog dialog_;
  MemorySettingsFiles settings_files_;
  FakePrinter printer_;
  MemoryHost host_;
  FakeLanguages languages_;
  MemoryXmlLibrary documents_;
  Program program_{{loop_, system_, messages_, view_, output_, random_, dialog_, settings_files_,
                    printer_, host_.Factory(), languages_.Factory(), documents_.Factory()},
                   {"vmod17", 1, 0, 0}};

 private:
  template <typename Condition>
  void WaitUntil(Condition condition) {
    while (!condition()) loop_.WaitForEvent(50);
    Settle();
  }
};

}  // namespace vmod17
