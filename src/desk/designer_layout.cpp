#include "desk/designer_layout.h"

#include <algorithm>

#include "desk/control_values.h"
#include "runtime/strings.h"

namespace corvane::desk {

namespace {

using host::ComponentType;

constexpr double kTwips = 15;       // to the logical pixel
constexpr QSizeF kFrame(120, 510);  // of a sizable window, in twips: both borders, title and borders
constexpr double kUnseenSize = 32;  // pixels: controls that have no size on screen
constexpr const char* kUnseen[] = {"Timer", "ImageList", "CommonDialog"};

// The scale of what holds controls: user scales follow from its size.
Unit ScaleOf(const ControlValues& values, QSizeF twips) {
  const int mode = static_cast<int>(values.Number("ScaleMode", 1));
  if (mode != 0) return UnitOfScaleMode(mode);
  const double width = values.Number("ScaleWidth"), height = values.Number("ScaleHeight");
  return {width != 0 ? twips.width() / std::abs(width) : 1, height != 0 ? twips.height() / std::abs(height) : 1};
}

QSizeF ClientTwips(const ControlValues& values, bool has_frame) {
  const QSizeF outer(values.Number("Width", 4800), values.Number("Height", 3600));
  const QSizeF inner = has_frame ? outer - kFrame : outer;
  const int mode = static_cast<int>(values.Number("ScaleMode", 1));
  if (mode == 0 || !values.Has("ScaleWidth")) return inner;
  const Unit unit = UnitOfScaleMode(mode);
  const QSizeF scaled(values.Number("ScaleWidth") * unit.x, values.Number("ScaleHeight") * unit.y);
  return scaled.isEmpty() ? inner : scaled;
}

QRectF LinePlace(const ControlValues& values, const Unit& unit) {
  const QPointF from(values.Number("X1") * unit.x, values.Number("Y1") * unit.y);
  const QPointF to(values.Number("X2") * unit.x, values.Number("Y2") * unit.y);
  return QRectF(from / kTwips, to / kTwips).normalized();
}

QRectF PlaceOf(const PlacedControl& control, const Unit& unit) {
  const ControlValues values(control.properties);
  if (control.class_name == "Line") return LinePlace(values, unit);
  const auto is_unseen = [&](const char* kind) { return control.class_name == kind; };
  QRectF place(values.Number("Left") * unit.x, values.Number("Top") * unit.y, values.Number("Width") * unit.x,
               values.Number("Height") * unit.y);
  place = {place.topLeft() / kTwips, place.size() / kTwips};
  if (place.isEmpty() || std::any_of(std::begin(kUnseen), std::end(kUnseen), is_unseen))
    place.setSize({kUnseenSize, kUnseenSize});
  return place;
}

enum Align { kTop = 1, kBottom = 2, kLeft = 3, kRight = 4 };

// An aligned control fills its side of the form, whatever its own numbers say.
void Stretch(PlacedControl& control, QRectF& room) {
  const int align = static_cast<int>(ControlValues(control.properties).Number("Align"));
  QRectF& place = control.place;
  const QSizeF size = place.size();
  switch (align) {
    case kTop:
      place = {room.left(), room.top(), room.width(), size.height()};
      room.setTop(place.bottom());
      break;
    case kBottom:
      place = {room.left(), room.bottom() - size.height(), room.width(), size.height()};
      room.setBottom(place.top());
      break;
    case kLeft:
      place = {room.left(), room.top(), size.width(), room.height()};
      room.setLeft(place.right());
      break;
    case kRight:
      place = {room.right() - size.width(), room.top(), size.width(), room.height()};
      room.setRight(place.left());
      break;
    default:
      break;
  }
}

class Reader {
 public:
  explicit Reader(environment::Module& module) : module_(module) {}

  Layout Read() {
    const ComponentType type = module_.Type();
    layout_.is_mdi = type == ComponentType::VBMDIForm;
    layout_.has_title_bar = layout_.is_mdi || type == ComponentType::VBForm;
    layout_.properties = module_.Properties();
    const ControlValues values(layout_.properties);
    layout_.caption = values.Text("Caption");
    const QSizeF twips = ClientTwips(values, layout_.has_title_bar);
    layout_.client = twips / kTwips;
    const Unit scale = ScaleOf(values, twips);
    if (const auto form = module_.Designer()) ReadControls(*form->VBControls(), scale);
    return std::move(layout_);
  }

 private:
  void ReadControls(host::VBControls& controls, const Unit& form_scale) {
    QRectF room({0, 0}, layout_.client);
    const long count = controls.Count();
    for (long position = 1; position <= count; ++position)
      host::PassOverErrors([&] { ReadControl(*controls.Item(host::Index(position)), position, form_scale, room); });
  }

  void ReadControl(host::VBControl& source, long position, const Unit& form_scale, QRectF& room) {
    PlacedControl control;
    control.position = position;
    control.class_name = source.ClassName();
    control.properties = source.Properties();
    const ControlValues values(control.properties);
    control.name = values.Text("Name");
    control.caption = values.Text("Caption");
    control.index =
        values.Has("Index") && !values.Text("Index").empty() ? static_cast<long>(values.Number("Index", -1)) : -1;
    host::PassOverErrors([&] { control.container = Find(source.ControlObject()->Container()); });
    const Unit unit = control.container < 0 ? form_scale : scales_[control.container];
    control.unit_x = unit.x, control.unit_y = unit.y;
    if (!control.IsMenu()) {
      control.place = PlaceOf(control, unit);
      if (control.container < 0) Stretch(control, room);
    }
    const QPointF origin = control.container < 0 ? QPointF() : layout_.controls[control.container].on_form.topLeft();
    control.on_form = control.place.translated(origin);
    scales_.push_back(control.class_name == "PictureBox" ? ScaleOf(values, control.place.size() * kTwips) : Unit{});
    layout_.controls.push_back(std::move(control));
  }

  // The container by its name and index among those read: it stands in front of what it holds.
  int Find(const host::Ref<host::VBControl>& container) const {
    if (!container) return -1;
    const ControlValues values(container->Properties());
    const std::string name = values.Text("Name"), index = values.Text("Index");
    for (size_t at = 0; at < layout_.controls.size(); ++at) {
      const PlacedControl& control = layout_.controls[at];
      if (control.name == name &&
          (control.index < 0 ? index.empty() || index == "-1" : index == runtime::CStr(control.index)))
        return static_cast<int>(at);
    }
    return -1;
  }

  environment::Module& module_;
  Layout layout_;
  std::vector<Unit> scales_;  // of what each control holds
};

}  // namespace

bool PlacedControl::IsLight() const {
  return class_name == "Label" || class_name == "Image" || class_name == "Line" || class_name == "Shape";
}

bool Layout::HasMenuBar() const {
  return std::any_of(controls.begin(), controls.end(), [](const auto& c) { return c.IsMenu() && c.container < 0; });
}

std::vector<int> Layout::Inside(int container) const {
  std::vector<int> inside;
  for (size_t at = 0; at < controls.size(); ++at)
    if (controls[at].container == container) inside.push_back(static_cast<int>(at));
  return inside;
}

// In a file of the environment what stands earlier lies in front.
std::vector<int> Layout::FrontToBack(int container) const {
  std::vector<int> order = Inside(container);
  std::erase_if(order, [&](int at) { return controls[at].IsMenu(); });
  std::stable_partition(order.begin(), order.end(), [&](int at) { return !controls[at].IsLight(); });
  return order;
}

// Lines are thin: a near miss hits them.
int Layout::At(const QPointF& place) const {
  constexpr double kNear = 2;
  int found = -1;
  for (bool deeper = true; deeper;) {
    deeper = false;
    for (const int child : FrontToBack(found)) {
      const PlacedControl& control = controls[child];
      if (!control.on_form.adjusted(-kNear, -kNear, kNear, kNear).contains(place)) continue;
      found = child;
      deeper = true;
      break;
    }
  }
  return found;
}

Layout ReadLayout(environment::Module& module) {
  return Reader(module).Read();
}

}  // namespace corvane::desk
