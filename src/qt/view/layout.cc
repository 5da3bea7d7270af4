// SPDX-FileCopyrightText: 2026 The Melvado authors
// SPDX-License-Identifier: Apache-2.0

#include "qt/view/layout.h"

#include <cstdlib>
#include <string_view>

namespace vmod17 {

Layout LayoutOf(const Form& form, const QSizeF& page) {
  if (form.name() == "grd_einst") return LayoutFirstScreen(form, page);
  if (form.name() == "einstellung1") return LayoutSettings(form, page);
  if (form.name() == "testergebnis") return LayoutResults(form, page);
  if (form.name() == "arbeitsblatt1") return LayoutWorksheet(form, page);
  return {};
}

const Control* FindControl(const Form& form, const std::string& id) {
  const std::size_t bracket = id.find('(');
  const std::string_view name = std::string_view(id).substr(0, bracket);
  const int index =
      bracket == std::string::npos ? Control::kNoIndex : std::atoi(id.c_str() + bracket + 1);
  for (const Control* control : form.controls()) {
    if (control->index() == index && control->name() == name) return control;
  }
  return nullptr;
}

std::string IdOf(const std::string& name, int index) {
  return name + "(" + std::to_string(index) + ")";
}

}  // namespace vmod17
