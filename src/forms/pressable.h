// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace vmod17 {

/// Which ready-made picture a control shows.
struct PictureId {
  std::string_view set;  ///< a literal, the name of a set of pictures; empty for no picture
  int number = 0;        ///< within the set
  bool operator==(const PictureId&) const = default;
};

/// How a control was judged when it was pressed as an answer.
struct AnswerMark {
  enum class Kind { kTick, kCross };
  Kind kind = Kind::kTick;
  int slot = 0;  ///< the question that was answered, from 1; 0 where there is only one
  bool operator==(const AnswerMark&) const = default;
};

/// A control that the user can press.
class Pressable : public Control {
 public:
  using Control::Control;
  std::function<void()> Click;

  int number = 0;                 ///< shown small beside what it shows; 0 for none
  std::vector<AnswerMark> marks;  ///< shown small, in the order of their making

  /// The user presses it. Returns whether it could be reached.
  bool Press() {
    if (!Reachable()) return false;
    if (Click) Click();
    return true;
  }
};

class Button : public Pressable {
 public:
  using Pressable::Pressable;
  Kind kind() const override { return Kind::kButton; }
};

/// A raised area with a caption; with a handler it works as a button.
class Panel : public Pressable {
 public:
  using Pressable::Pressable;
  Kind kind() const override { return Kind::kPanel; }
};

/// A sign that the view draws, in the colour of its texts.
enum class Sign { kNone, kRisingBars, kStopWatch };

/// Shows a picture or a sign.
class Picture : public Pressable {
 public:
  using Pressable::Pressable;
  Kind kind() const override { return Kind::kPicture; }
  PictureId image;
  Sign sign = Sign::kNone;
};

}  // namespace vmod17
