// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/kit/narrator.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QWidget>
#include <utility>

namespace vmod17 {
namespace {

Narrator* narrator = nullptr;  // the toolkit's hook is a plain function

bool EndsSentence(const QString& text) { return QString(".!?:。！？：").contains(text.back()); }

/// Several sentences in one go, each with its end to be heard.
QString Joined(const QStringList& sentences) {
  QString joined;
  for (const QString& sentence : sentences) {
    const QString trimmed = sentence.simplified();
    if (trimmed.isEmpty()) continue;
    if (!joined.isEmpty()) joined += EndsSentence(joined) ? " " : ". ";
    joined += trimmed;
  }
  return joined;
}

}  // namespace

/// Something to be in the focus that has nothing to say.
class Narrator::Blank : public QWidget {
 public:
  explicit Blank(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1);
    lower();
  }

  static QAccessibleInterface* Interface(const QString&, QObject* object) {
    auto* const blank = dynamic_cast<Blank*>(object);
    return blank == nullptr ? nullptr : new Accessible(blank);
  }

 private:
  class Accessible : public QAccessibleWidget {
   public:
    // A space is spoken, and so ends what was being spoken; without any name nothing would.
    explicit Accessible(Blank* blank) : QAccessibleWidget(blank, QAccessible::Whitespace, " ") {}
    QAccessible::State state() const override {
      QAccessible::State state = QAccessibleWidget::state();
      state.focusable = true;
      state.focused = true;
      return state;
    }
  };
};

Narrator::Narrator(QWidget& window)
    : before_(QAccessible::installUpdateHandler(&Narrator::Filter)),
      line_(window),
      blank_(new Blank(&window)) {
  QAccessible::installFactory(&Blank::Interface);
  narrator = this;
}

Narrator::~Narrator() {
  narrator = nullptr;
  QAccessible::installUpdateHandler(before_);
}

void Narrator::Filter(QAccessibleEvent* event) {
  if (narrator == nullptr || narrator->Heed(*event)) PassOn(event);
}

/// To whoever listened before, or to the platform, which is reached only past all handlers.
void Narrator::PassOn(QAccessibleEvent* event) {
  if (narrator != nullptr && narrator->before_ != nullptr) return narrator->before_(event);
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(&Narrator::Filter);
}

/// Returns whether an event goes through as it is.
bool Narrator::Heed(const QAccessibleEvent& event) {
  const bool focus = event.type() == QAccessible::Focus;
  const bool in_focus = event.object() == QApplication::focusWidget();
  const auto* const list = qobject_cast<const QComboBox*>(event.object());
  const bool entry = event.type() == QAccessible::ValueChanged && in_focus && list != nullptr;
  if (!changing_) {
    if (focus) untold_.reset();
    if (entry) line_.Say(list->currentText());
    return true;
  }
  if (entry) new_entry_ = true;
  if (!focus && event.type() != QAccessible::ValueChanged) return true;
  // A list tells of its entries as if the focus came to them, wherever it is; and readers speak of
  // every step of a gauge.
  if (!in_focus) return false;
  if (!focus) return true;
  untold_ = Place{event.object(), event.child()};
  return false;
}

void Narrator::Begin(bool listening) {
  changing_ = true;
  if (listening == listening_) return;
  listening_ = listening;
  if (!listening || !QAccessible::isActive()) return;
  untold_ = Place{QApplication::focusWidget()};
  QAccessibleEvent rest(blank_, QAccessible::Focus);
  PassOn(&rest);
}

void Narrator::End(const std::vector<std::string>& said) {
  changing_ = false;
  if (!QAccessible::isActive()) return;
  const auto* const list = qobject_cast<QComboBox*>(QApplication::focusWidget());
  if (std::exchange(new_entry_, false) && list != nullptr && !untold_) said_ << list->currentText();
  for (const std::string& sentence : said) {
    if (!sentence.empty()) said_ << QString::fromStdString(sentence);
  }
  if (listening_) return;
  if (said_.isEmpty()) return TellFocus();
  // A page that nothing can take the focus from has it itself, and its name is its title.
  if (untold_ && !said_.contains(NameOfFocus())) said_ << NameOfFocus();
  untold_.reset();
  line_.Say(Joined(std::exchange(said_, {})));
}

void Narrator::TellFocus() {
  const std::optional<Place> place = std::exchange(untold_, std::nullopt);
  if (!place || place->object == nullptr) return;
  QAccessibleEvent event(place->object, QAccessible::Focus);
  event.setChild(place->child);
  PassOn(&event);
}

QString Narrator::NameOfFocus() const {
  QAccessibleInterface* const place = QAccessible::queryAccessibleInterface(untold_->object);
  if (place == nullptr) return {};
  QAccessibleInterface* const child = place->child(untold_->child);
  if (child != nullptr) return child->text(QAccessible::Name);
  return Joined({place->text(QAccessible::Name), place->text(QAccessible::Value)});
}

}  // namespace vmod17
