// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <gmock/gmock.h>

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "programs/host/home_window.h"
#include "programs/host/host.h"
#include "qt/kit/press_widget.h"
#include "qt/surroundings.h"
#include "support/fake_platform.h"

namespace melvado {

using vmod17::Serve;
using vmod17::ServeUntil;
using vmod17::Surrounding;

/// MIDI ports that a test plugs in and pulls out, also while a thread plays on them.
class PluggedPorts : public vmod17::MidiPorts {
 public:
  void Plug(const std::vector<std::string>& names) {
    const std::lock_guard lock(mutex_);
    names_ = names;
  }
  std::vector<vmod17::MidiBytes> Got() {
    const std::lock_guard lock(mutex_);
    return got_;
  }

  std::vector<std::string> Names() override {
    const std::lock_guard lock(mutex_);
    return names_;
  }
  std::unique_ptr<vmod17::MidiPort> Open(const std::string& name) override {
    if (!Has(name)) return nullptr;
    return std::make_unique<Port>(*this, name);
  }

 private:
  class Port : public vmod17::MidiPort {
   public:
    Port(PluggedPorts& ports, std::string name) : ports_(ports), name_(std::move(name)) {}
    bool Send(const vmod17::MidiBytes& message) override {
      if (!IsThere()) return false;
      const std::lock_guard lock(ports_.mutex_);
      ports_.got_.push_back(message);
      return true;
    }
    bool IsThere() override { return ports_.Has(name_); }

   private:
    PluggedPorts& ports_;
    const std::string name_;
  };

  bool Has(const std::string& name) {
    const std::lock_guard lock(mutex_);
    return std::ranges::find(names_, name) != names_.end();
  }

  std::mutex mutex_;
  std::vector<std::string> names_;
  std::vector<vmod17::MidiBytes> got_;
};

/// A host on a store of its own, with ports and a module in the hands of the test.
class HostStage : public testing::Test {
 protected:
  HostStage() {
    loop_.on_error = [](const std::exception_ptr& error) {
      try {
        std::rethrow_exception(error);
      } catch (const std::exception& what) {
        ADD_FAILURE() << what.what();
      }
    };
  }
  ~HostStage() override { Close(); }

  QString At(const QString& name) const { return folder_.filePath(name); }

  HostSetup HostOfTest() {
    HostSetup setup;
    setup.store = At("store.sqlite").toStdString();
    setup.language_folders = {PROGRAM_LANGUAGES};
    setup.locales = locales_;
    setup.module = FAKE_MODULE;
    setup.sound.ports = ports_;
    setup.sound.audio_drivers = {"sdl2"};
    return setup;
  }
  void Open() { Open(HostOfTest()); }
  void Open(HostSetup setup) {
    Close();
    host_ = std::make_unique<Host>(std::move(setup), loop_);
    host_->SetTell([this](const vmod17::Notice& notice) { told_.push_back(notice.text_id); });
    window_ = std::make_unique<HomeWindow>(*host_, loop_, messages_, dialog_);
    window_->resize(1024, 730);
    window_->Open();
    Serve();
  }
  void Close() {
    window_.reset();
    host_.reset();
  }
  void RunOnStore(const QString& statement) {
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "test");
    database.setDatabaseName(At("store.sqlite"));
    ASSERT_TRUE(database.open());
    {
      QSqlQuery query(database);
      ASSERT_TRUE(query.exec(statement));
    }
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase("test");
  }

  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* const widget = window_->findChild<Widget*>(name);
    if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return widget;
  }
  void Press(const char* name) { Find<vmod17::PressWidget>(name)->click(); }
  QString Caption(const char* name) const {
    return dynamic_cast<vmod17::Dressed*>(Find<QWidget>(name))->caption();
  }
  QStringList Entries(const char* name) const {
    const auto* list = Find<QComboBox>(name);
    QStringList entries;
    for (int i = 0; i < list->count(); ++i) entries << list->itemText(i);
    return entries;
  }
  void Choose(const char* list, int index) { Find<QComboBox>(list)->setCurrentIndex(index); }

  /// Presses the button and lets the module do what the script says, to its end.
  void RunModule(const QByteArray& script) {
    const Surrounding fake("FAKE_MODULE", script);
    Press("start");
    ASSERT_TRUE(
        ServeUntil([this] { return !host_->ModuleRuns() && host_->ModulesThatLeave() == 0; }));
    Serve();
  }

  QTemporaryDir folder_;
  Surrounding runtime_{"XDG_RUNTIME_DIR", folder_.path().toUtf8()};
  std::vector<std::string> locales_ = {"de_DE"};
  std::shared_ptr<PluggedPorts> ports_ = std::make_shared<PluggedPorts>();
  vmod17::QtEventLoop loop_;
  vmod17::ScriptedMessageBox messages_;
  vmod17::ScriptedFileDialog dialog_;
  std::vector<int> told_;
  std::unique_ptr<Host> host_;
  std::unique_ptr<HomeWindow> window_;
};

}  // namespace melvado
