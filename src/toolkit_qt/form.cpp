#include "toolkit_qt/form.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QWindow>
#include <iterator>

#include "toolkit_qt/colors.h"
#include "toolkit_qt/keys.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/pictures.h"
#include "toolkit_qt/texts.h"
#include "toolkit_qt/toolkit.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

struct Border {
  forms::Rect frame;  // left, top; both borders together
  Qt::WindowFlags flags;
  bool fixed;
};

constexpr Qt::WindowFlags kTitled =
    Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
constexpr Qt::WindowFlags kTool =
    Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

// By FormBorder.
const Border kBorders[] = {
    {{0, 0, 0, 0}, Qt::Window | Qt::FramelessWindowHint, true},
    {{45, 330, 90, 375}, kTitled | Qt::WindowMinimizeButtonHint, true},
    {{60, 345, 120, 405}, kTitled | Qt::WindowMinMaxButtonsHint, false},
    {{45, 330, 90, 375}, kTitled, true},
    {{45, 285, 90, 330}, kTool, true},
    {{60, 300, 120, 360}, kTool, false},
};

const Border& BorderOf(const forms::Form& form) {
  const auto style = static_cast<size_t>(form.BorderStyle());
  return kBorders[style < std::size(kBorders) ? style : static_cast<size_t>(forms::FormBorder::Sizable)];
}

// Windows drawn into memory have no order, and Qt complains when asked for one.
void Raise(QWidget& window) {
  if (QGuiApplication::platformName() != QLatin1String("offscreen")) window.raise();
}

}  // namespace

class FormWindow : public QWidget {
 public:
  FormWindow(FormWindowPeer& peer, QWidget* parent, Qt::WindowFlags flags) : QWidget(parent, flags), peer_(&peer) {
    setFocusPolicy(Qt::NoFocus);
  }
  void Leave() { peer_ = nullptr; }
  bool HasPeer() const { return peer_ != nullptr; }

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (!peer_) return;
    event->ignore();
    peer_->CloseAsked();
  }
  void resizeEvent(QResizeEvent*) override {
    if (peer_) peer_->WindowResized();
  }
  void moveEvent(QMoveEvent*) override {
    if (peer_) peer_->WindowMoved();
  }
  void changeEvent(QEvent* event) override {
    if (peer_ && event->type() == QEvent::WindowStateChange) peer_->WindowStateChanged();
    QWidget::changeEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (!peer_ || !peer_->KeyPressed(*event)) QWidget::keyPressEvent(event);
  }
  void keyReleaseEvent(QKeyEvent* event) override {
    if (peer_) peer_->KeyReleased(*event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (peer_ && event->button() == Qt::LeftButton) peer_->Clicked();
  }

 private:
  FormWindowPeer* peer_;
};

forms::Rect FrameOfForm(const forms::Form& form) {
  forms::Rect frame = BorderOf(form).frame;
  if (form.ShowsMenuBar()) {
    frame.top += TwipsOf(MenuBar::kHeight);
    frame.height += TwipsOf(MenuBar::kHeight);
  }
  return frame;
}

FormWindowPeer::FormWindowPeer(QtToolkit& toolkit, forms::Form& form)
    : toolkit_(toolkit),
      form_(form),
      window_(new FormWindow(*this, toolkit.ParentWindow(), BorderOf(form).flags)),
      surface_(new QWidget(window_)),
      menus_(toolkit, form, *window_) {
  surface_->setAutoFillBackground(true);
  Changed(forms::Property::All);
}

FormWindowPeer::~FormWindowPeer() {
  if (modal_loop_) modal_loop_->quit();
  if (!window_) return;
  window_->Leave();
  window_->hide();
  window_->deleteLater();
}

QWidget* FormWindowPeer::Window() const {
  return window_;
}

void FormWindowPeer::Changed(forms::Property property) {
  if (!window_) return;
  const QtToolkit::ByCode by_code(toolkit_);
  ++showing_;
  using forms::Property;
  const auto is = [&](auto... any) { return property == Property::All || ((property == any) || ...); };
  if (is(Property::Caption)) window_->setWindowTitle(ShownText(form_.Caption()));
  if (is(Property::Icon)) window_->setWindowIcon(IconOf(form_.Icon()));
  if (is(Property::BackColor)) surface_->setPalette(PaletteWith(form_.BackColor(), forms::kButtonText));
  if (is(Property::MousePointer)) window_->setCursor(ShownPointer(form_.MousePointer()));
  if (is(Property::Left, Property::Top, Property::Width, Property::Height)) ShowPlace();
  if (is(Property::WindowState)) ShowState();
  if (is(Property::Visible)) ShowVisible();
  --showing_;
}

QSize FormWindowPeer::ClientPixels() const {
  return {std::max(1, Pixels(form_.ScaleWidth())), std::max(1, Pixels(form_.ScaleHeight()))};
}

// A form that was never placed is placed by the window manager.
void FormWindowPeer::ShowPlace() {
  const QSize client = ClientPixels();
  const QSize size(client.width(), client.height() + menus_.ShownHeight());
  if (BorderOf(form_).fixed) {
    window_->setFixedSize(size);
  } else if (form_.WindowState() == forms::vbNormal) {
    window_->resize(size);
  }
  const QPoint place(Pixels(form_.Left()), Pixels(form_.Top()));
  if (!place.isNull() && form_.WindowState() == forms::vbNormal && place != window_->pos()) window_->move(place);
  LayOut();
}

void FormWindowPeer::LayOut() {
  const int menu = menus_.LayOut(window_->width());
  surface_->setGeometry(0, menu, window_->width(), std::max(0, window_->height() - menu));
}

void FormWindowPeer::ShowState() {
  constexpr Qt::WindowState kStates[] = {Qt::WindowNoState, Qt::WindowMinimized, Qt::WindowMaximized};
  const Qt::WindowStates state = kStates[form_.WindowState()];
  if ((window_->windowState() & (Qt::WindowMinimized | Qt::WindowMaximized)) != state) window_->setWindowState(state);
}

void FormWindowPeer::ShowVisible() {
  if (!form_.Visible()) {
    window_->hide();
    if (modal_loop_) modal_loop_->quit();
    return;
  }
  if (window_->isVisible()) return;
  window_->setWindowModality(form_.IsModal() ? Qt::ApplicationModal : Qt::NonModal);
  ShowPlace();
  if (form_.IsModal()) {
    window_->winId();
    if (QWindow* owner = QGuiApplication::focusWindow(); owner && owner != window_->windowHandle()) {
      window_->windowHandle()->setTransientParent(owner);
    }
  }
  window_->show();
}

void FormWindowPeer::TakeFocus() {
  const QtToolkit::ByCode by_code(toolkit_);
  if (window_) window_->setFocus(Qt::OtherFocusReason);
}

void FormWindowPeer::BringToFront(bool front) {
  if (window_) front ? Raise(*window_) : window_->lower();
}

void FormWindowPeer::Activate() {
  if (!window_) return;
  const QtToolkit::ByCode by_code(toolkit_);
  Raise(*window_);
  window_->activateWindow();
}

void FormWindowPeer::RunModalLoop() {
  if (!window_ || !form_.Visible()) return;
  QEventLoop loop;
  modal_loop_ = &loop;
  loop.exec();
}

void FormWindowPeer::WindowResized() {
  LayOut();
  const QSize now = surface_->size();
  if (!window_->isVisible() || window_->isMinimized() || now == ClientPixels()) return;
  const forms::Rect frame = FrameOfForm(form_);
  const forms::Twips width = TwipsOf(now.width()) + frame.width, height = TwipsOf(now.height()) + frame.height;
  if (ShownState() != form_.WindowState() || (showing_ > 0 && ShownState() != forms::vbNormal)) {
    form_.NoteSize(width, height);
  } else if (showing_ == 0) {
    toolkit_.Guard([&] { form_.UserResize(width, height); });
  }
}

void FormWindowPeer::WindowMoved() {
  const QPoint now = window_->pos();
  const bool told = now == QPoint(Pixels(form_.Left()), Pixels(form_.Top()));
  if (showing_ > 0 || told || !window_->isVisible() || window_->isMinimized()) return;
  toolkit_.Guard([&] { form_.UserMove(TwipsOf(now.x()), TwipsOf(now.y())); });
}

int FormWindowPeer::ShownState() const {
  return window_->isMinimized() ? forms::vbMinimized : window_->isMaximized() ? forms::vbMaximized : forms::vbNormal;
}

void FormWindowPeer::WindowStateChanged() {
  const int now = ShownState();
  if (showing_ > 0 || now == form_.WindowState()) return;
  toolkit_.Guard([&] { form_.UserWindowState(now); });
}

void FormWindowPeer::CloseAsked() {
  toolkit_.Guard([this] { form_.UserClose(); });
}

// Only keys that no control took come here; a control was asked already.
bool FormWindowPeer::KeyPressed(const QKeyEvent& event) {
  if (form_.ActiveControl()) return false;
  const int code = KeyCodeOf(event), shift = ShiftOf(event.modifiers()), character = KeyAsciiOf(event);
  const QPointer<FormWindow> window = window_;
  toolkit_.Guard([&] {
    if ((code != 0 && form_.UserKey(code, shift)) || !window || !window->HasPeer()) return;
    if (!OpenMenuByKey(form_, code, shift) && character != 0) form_.UserKeyPress(character);
  });
  return true;
}

void FormWindowPeer::KeyReleased(const QKeyEvent& event) {
  const int code = KeyCodeOf(event);
  if (code == 0 || event.isAutoRepeat() || form_.ActiveControl()) return;
  toolkit_.Guard([&] { form_.UserKeyUp(code, ShiftOf(event.modifiers())); });
}

void FormWindowPeer::Clicked() {
  toolkit_.Guard([this] { form_.UserClick(); });
}

bool OpenMenuByKey(forms::Form& form, int key_code, int shift) {
  auto* peer = dynamic_cast<FormWindowPeer*>(form.Peer());
  return peer && shift == forms::vbAltMask && peer->Menus().Open(key_code);
}

}  // namespace corvane::toolkit_qt
