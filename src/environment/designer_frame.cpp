#include "environment/designer_frame.h"

#include <string>

#include "environment/designer_tree.h"
#include "environment/properties_values.h"

namespace corvane::environment {

namespace {

// At 96 dots per inch, as the environment's files have them: 15 twips are a pixel.
constexpr double kCaptionHeight = 285, kToolCaptionHeight = 240, kMenuHeight = 285;
constexpr double kFixedEdge = 45, kSizableEdge = 60;
constexpr long kUserScale = 0;

enum BorderStyle : long { kNone = 0, kFixedSingle, kSizable, kFixedDialog, kFixedTool, kSizableTool };

bool IsTrue(const DesignerBlock& block, std::string_view name) {
  return LongValue(block, name, -1) != 0;
}

bool HasMenuBar(const DesignerBlock& root) {
  for (const DesignerBlockRef& child : root.Children())
    if (IsMenu(*child) && IsTrue(*child, "Visible")) return true;
  return false;
}

// What the border of a picture box takes from its size.
double BorderOf(const DesignerBlock& block) {
  if (LongValue(block, "BorderStyle", 1) == 0) return 0;
  return LongValue(block, "Appearance", 1) == 0 ? 30 : 60;
}

const char* ClientName(PropertyRule rule) {
  switch (rule) {
    case PropertyRule::FrameLeft:
      return "ClientLeft";
    case PropertyRule::FrameTop:
      return "ClientTop";
    case PropertyRule::FrameWidth:
    case PropertyRule::ClientWidth:
      return "ClientWidth";
    default:
      return "ClientHeight";
  }
}

// What is to be added to the file's value.
double FramePart(const DesignerBlock& root, PropertyRule rule) {
  const FrameSizes frame = FrameOf(root);
  switch (rule) {
    case PropertyRule::FrameLeft:
      return -frame.left;
    case PropertyRule::FrameTop:
      return -frame.top;
    case PropertyRule::FrameWidth:
      return frame.width;
    case PropertyRule::FrameHeight:
      return frame.height;
    default:
      return 0;
  }
}

}  // namespace

FrameSizes FrameOf(const DesignerBlock& root) {
  const long border = LongValue(root, "BorderStyle", kSizable);
  const bool sizable = border == kSizable || border == kSizableTool;
  const bool tool = border == kFixedTool || border == kSizableTool;
  const double edge = border == kNone ? 0 : sizable ? kSizableEdge : kFixedEdge;
  const bool has_caption =
      border != kNone && (IsTrue(root, "ControlBox") || LineValue(root, "Caption").text.size() > 2);
  double above = edge + (!has_caption ? 0 : tool ? kToolCaptionHeight : kCaptionHeight);
  if (HasMenuBar(root)) above += kMenuHeight;
  return {edge, above, 2 * edge, above + edge};
}

double FrameLength(const DesignerBlock& root, const ControlClass& window, PropertyRule rule) {
  double otherwise = 0;
  if (rule == PropertyRule::FrameHeight || rule == PropertyRule::ClientHeight)
    otherwise = static_cast<double>(window.height);
  if (rule == PropertyRule::FrameWidth || rule == PropertyRule::ClientWidth)
    otherwise = static_cast<double>(window.width);
  return LengthValue(root, ClientName(rule), otherwise) + FramePart(root, rule);
}

bool SetFrameLength(DesignerPart& part, DesignerBlock& root, PropertyRule rule, double value) {
  return SetLine(part, root, ClientName(rule), WriteLength(value - FramePart(root, rule)));
}

double TwipsPerUnit(long scale_mode, bool vertical) {
  constexpr double kTwips[] = {1, 1, 20, 15, 0, 1440, 56.7, 567};
  if (scale_mode == 4) return vertical ? 240 : 120;
  return scale_mode >= 0 && scale_mode <= 7 ? kTwips[scale_mode] : 1;
}

bool UpdateScale(DesignerPart& part, DesignerBlock& block, const ControlClass& known) {
  if (!known.Find("ScaleMode")) return false;
  const long mode = LongValue(block, "ScaleMode", 1);
  if (mode == kUserScale) return false;
  const bool is_window = !known.unlisted.empty();
  const double border = is_window ? 0 : BorderOf(block);
  const double width =
      LengthValue(block, is_window ? "ClientWidth" : "Width", static_cast<double>(known.width)) - border;
  const double height =
      LengthValue(block, is_window ? "ClientHeight" : "Height", static_cast<double>(known.height)) - border;
  const bool taller = SetLine(part, block, "ScaleHeight", WriteLength(height / TwipsPerUnit(mode, true)));
  return SetLine(part, block, "ScaleWidth", WriteLength(width / TwipsPerUnit(mode, false))) || taller;
}

}  // namespace corvane::environment
