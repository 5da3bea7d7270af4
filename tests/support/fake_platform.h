// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/numbers.h"
#include "base/run_time_error.h"
#include "ports/file_dialog.h"
#include "ports/form_view.h"
#include "ports/language.h"
#include "ports/message_box.h"
#include "ports/printer.h"
#include "ports/settings_file.h"
#include "ports/system.h"

namespace vmod17 {

/// Records the messages and answers questions from a script.
class ScriptedMessageBox : public MessageBox {
 public:
  struct Shown {
    std::string text;
    std::string title;
    bool operator==(const Shown&) const = default;
  };
  std::vector<Shown> warnings;
  std::vector<Shown> questions;
  Answer answer = Answer::kNo;
  std::vector<std::vector<std::string>> offered;  ///< the answers of the questions that have words
  std::vector<std::optional<int>> choices;        ///< which of them is taken; none when used up
  std::optional<Answer> preselected;              ///< in the question asked last
  int withdrawn = 0;                              ///< questions that were taken away
  /// Runs while a message is on display.
  std::function<void()> meanwhile;
  /// Runs while a question stands.
  std::function<void()> while_asked;

  void Warn(const std::string& text, const std::string& title) override {
    warnings.push_back({text, title});
    if (meanwhile) meanwhile();
  }
  Answer Ask(const std::string& text, const std::string& title, Answer first) override {
    questions.push_back({text, title});
    preselected = first;
    if (while_asked) while_asked();
    return answer;
  }
  std::optional<int> Choose(const std::string& text, const std::string& title,
                            const std::vector<std::string>& answers) override {
    questions.push_back({text, title});
    offered.push_back(answers);
    if (while_asked) while_asked();
    if (choices.empty()) return std::nullopt;
    const std::optional<int> choice = choices.front();
    choices.erase(choices.begin());
    return choice;
  }
  void Withdraw() override { ++withdrawn; }
};

/// Answers with the files that a test names; none at first, as a user who gives up.
class ScriptedFileDialog : public FileDialog {
 public:
  std::optional<std::string> to_save;
  std::optional<std::string> to_open;
  std::vector<std::string> proposals;
  std::string folder;  ///< in which the dialog for opening began last
  int opened = 0;

  std::optional<std::string> AskToSave(const std::string&, const std::string& proposal) override {
    proposals.push_back(proposal);
    return to_save;
  }
  std::optional<std::string> AskToOpen(const std::string&, const std::string&,
                                       const std::string& begin) override {
    ++opened;
    folder = begin;
    return to_open;
  }
};

/// Test files in memory, by name.
class MemorySettingsFiles : public SettingsFiles {
 public:
  std::map<std::string, FixedSettings> files;
  std::optional<SettingsFileError> trouble;  ///< raised by each call while it is set

  void Write(const std::string& file, const FixedSettings& document) override {
    if (trouble) throw *trouble;
    files[file] = document;
  }
  FixedSettings Read(const std::string& file) override {
    if (trouble) throw *trouble;
    const auto found = files.find(file);
    if (found == files.end()) throw SettingsFileError({9611, "The file does not exist.", {}}, 0, 0);
    return found->second;
  }
};

class FakeSystem : public System {
 public:
  std::string computer = "tonstudio";
  std::map<std::string, std::string> environment = {{"temp", "/tmp"}};
  std::string temporary_folder = "/var/tmp";
  std::string decimal_point = ".";
  std::vector<std::string> keys;

  std::string ComputerName() const override { return computer; }
  std::optional<std::string> Environment(const std::string& name) const override {
    const auto found = environment.find(name);
    return found == environment.end() ? std::nullopt : std::optional(found->second);
  }
  std::string TemporaryFolder() const override { return temporary_folder; }
  std::string DecimalPoint() const override { return decimal_point; }
  /// "21.11.2026 14:03".
  std::string DateTimeText(const DateTime& t) const override {
    return PaddedText(t.day, 2) + "." + PaddedText(t.month, 2) + "." + PaddedText(t.year, 4) + " " +
           PaddedText(t.hour, 2) + ":" + PaddedText(t.minute, 2);
  }
  void SendKeys(const std::string& sent) override { keys.push_back(sent); }
};

/// Languages in memory. A language without words answers each key with the key itself in brackets:
/// "[700s]".
class FakeLanguages {
 public:
  struct Words {
    std::map<std::string, std::string> words;
    std::set<std::string> missing;  ///< keys that raise
    bool broken = false;            ///< listed, but cannot be made
  };
  std::vector<std::pair<std::string, Words>> languages = {{"Deutsch", {}}, {"English", {}}};
  bool no_list = false;                ///< the list itself cannot be made
  std::vector<std::string> made;       ///< class names, in the order of their making
  std::vector<std::string> looked_up;  ///< keys, in the order of the look-ups

  std::unique_ptr<LanguageList> Make() {
    if (no_list) {
      throw RunTimeError(ErrorNumber::kCannotCreate, "no list", "vmod17.FakeLanguages");
    }
    return std::make_unique<List>(*this);
  }
  auto Factory() {
    return [this] { return Make(); };
  }

 private:
  class Class : public Language {
   public:
    Class(FakeLanguages& all, const Words& words) : all_(all), words_(words) {}
    std::string Wort(const std::string& key) const override {
      all_.looked_up.push_back(key);
      if (words_.missing.contains(key)) {
        throw RunTimeError(ErrorNumber::kUnknownText, "no word for " + key, "vmod17.FakeLanguages");
      }
      const auto found = words_.words.find(key);
      return found == words_.words.end() ? "[" + key + "]" : found->second;
    }

   private:
    FakeLanguages& all_;
    const Words& words_;
  };
  class List : public LanguageList {
   public:
    explicit List(FakeLanguages& all) : all_(all) {}
    std::vector<LanguageColumn> Table() const override {
      std::vector<LanguageColumn> table;
      for (const auto& [name, words] : all_.languages) table.push_back({"xx_XX", name});
      return table;
    }
    std::unique_ptr<Language> Create(const std::string& class_name) const override {
      all_.made.push_back(class_name);
      for (const auto& [name, words] : all_.languages) {
        if ("melvadolang." + name == class_name && !words.broken) {
          return std::make_unique<Class>(all_, words);
        }
      }
      throw RunTimeError(ErrorNumber::kCannotCreate, "cannot make " + class_name,
                         "vmod17.FakeLanguages");
    }

   private:
    FakeLanguages& all_;
  };
};

/// Notes what is printed, and answers as a test says.
class FakePrinter : public Printer {
 public:
  struct Page {
    std::string form;
    Orientation orientation;
  };
  std::vector<Page> pages;
  Orientation orientation = Orientation::kPortrait;
  PrintResult result{true, std::nullopt};
  /// Runs while the form is printed, when it looks as it does on paper.
  std::function<void(const Form&)> inspect;

  void SetOrientation(Orientation wanted) override { orientation = wanted; }
  PrintResult PrintForm(Form& form) override {
    pages.push_back({form.name(), orientation});
    if (inspect) inspect(form);
    return result;
  }
};

/// Shows nothing, and knows which screens it was given.
class NoView : public FormView {
 public:
  std::vector<Form*> forms;
  FormView* shown_by = nullptr;  ///< a view that shows them after all
  void Attach(Form& form) override {
    forms.push_back(&form);
    if (shown_by != nullptr) shown_by->Attach(form);
  }
  void Detach(Form& form) override {
    std::erase(forms, &form);
    if (shown_by != nullptr) shown_by->Detach(form);
  }
};

}  // namespace vmod17
