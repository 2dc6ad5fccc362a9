// Overlapping and clipped controls.
#include <algorithm>
#include <optional>

#include "forms/controls.h"
#include "forms/layout_text.h"
#include "forms/mnemonic.h"
#include "forms/text_lines.h"

namespace corvane::forms {

namespace {

// What a control needs beside its caption, across.
constexpr Twips kButtonEdges = 150, kCheckMark = 255, kFrameEdges = 240;

bool IsSeen(const Control& control) {
  return control.Visible() && control.Kind() != ControlKind::Timer && control.Kind() != ControlKind::ImageList;
}

bool CoversOthers(const Control& control) {
  return IsSeen(control) && control.Kind() != ControlKind::Line && control.Kind() != ControlKind::Shape;
}

bool Overlap(const Rect& left, const Rect& right) {
  return left.left < right.left + right.width && right.left < left.left + left.width &&
         left.top < right.top + right.height && right.top < left.top + left.height;
}

std::string Called(const Control& control) {
  return control.Index() < 0 ? control.Name() : control.Name() + "(" + std::to_string(control.Index()) + ")";
}

bool Names(const std::vector<std::string>& names, const Control& control) {
  return std::find(names.begin(), names.end(), control.Name()) != names.end();
}

// Calls [visit] for the form and each container that is seen, with its name and the size inside it.
template <class Visit>
void ForEachContainer(const Container& container, const std::string& name, Twips width, Twips height, Visit&& visit) {
  visit(container, name, width, height);
  for (const Control* control : container.Controls()) {
    const auto* inner = dynamic_cast<const Container*>(control);
    if (!inner || !IsSeen(*control)) continue;
    const auto* box = dynamic_cast<const PictureBox*>(control);
    ForEachContainer(*inner, Called(*control), box ? box->ScaleWidth() : control->Width(),
                     box ? box->ScaleHeight() : control->Height(), visit);
  }
}

template <class Visit>
void ForEachContainer(const Form& form, Visit&& visit) {
  ForEachContainer(form, form.Name(), form.ScaleWidth(), form.ScaleHeight(), visit);
}

struct Caption {
  std::string text;
  Twips beside = 0;
};

// The caption that has to fit; none for kinds without one, and for those that fit themselves.
std::optional<Caption> CaptionOf(const Control& control) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) {
    if (label->AutoSize()) return std::nullopt;
    const Twips borders = label->BorderStyle() != 0 ? 60 : 0;
    return Caption{label->UseMnemonic() ? WithoutMnemonic(label->Caption()) : label->Caption(), borders};
  }
  if (const auto* frame = dynamic_cast<const Frame*>(&control))
    return Caption{WithoutMnemonic(frame->Caption()), kFrameEdges};
  if (const auto* button = dynamic_cast<const Button*>(&control)) {
    const bool press = control.Kind() == ControlKind::CommandButton || button->Style() == 1;
    return Caption{WithoutMnemonic(button->Caption()), press ? kButtonEdges : kCheckMark};
  }
  return std::nullopt;
}

bool IsWrapped(const Control& control) {
  const auto* label = dynamic_cast<const Label*>(&control);
  return label && label->WordWrap();
}

bool CaptionFits(const Control& control, TextMetrics& metrics) {
  const auto caption = CaptionOf(control);
  if (!caption || caption->text.empty()) return true;
  const Twips width = control.Width() - caption->beside;
  if (IsWrapped(control)) return WrappedHeight(metrics, caption->text, control.Font(), width) <= control.Height();
  return WidestLine(metrics, caption->text, control.Font()) <= width &&
         HeightOfLines(metrics, caption->text, control.Font()) <= control.Height();
}

bool SticksOut(const Rect& place, Twips width, Twips height) {
  return place.left < 0 || place.top < 0 || place.left + place.width > width || place.top + place.height > height;
}

}  // namespace

std::vector<std::string> FindOverlaps(const Form& form, const std::vector<std::string>& may_overlap) {
  std::vector<std::string> found;
  ForEachContainer(form, [&](const Container& container, const std::string& name, Twips, Twips) {
    const auto& controls = container.Controls();
    for (size_t first = 0; first < controls.size(); ++first) {
      for (size_t second = first + 1; second < controls.size(); ++second) {
        const Control &left = *controls[first], &right = *controls[second];
        if (!CoversOthers(left) || !CoversOthers(right) || Names(may_overlap, left) || Names(may_overlap, right))
          continue;
        if (Overlap(left.Place(), right.Place())) {
          found.push_back(Called(left) + " and " + Called(right) + " overlap in " + name);
        }
      }
    }
  });
  return found;
}

std::vector<std::string> FindClipped(const Form& form) {
  std::vector<std::string> found;
  TextMetrics& metrics = form.Toolkit().Metrics();
  ForEachContainer(form, [&](const Container& container, const std::string& name, Twips width, Twips height) {
    for (const Control* control : container.Controls()) {
      if (!IsSeen(*control)) continue;
      if (SticksOut(control->Place(), width, height)) found.push_back(Called(*control) + " sticks out of " + name);
      if (!CaptionFits(*control, metrics)) found.push_back("the caption of " + Called(*control) + " does not fit");
    }
  });
  return found;
}

}  // namespace corvane::forms
