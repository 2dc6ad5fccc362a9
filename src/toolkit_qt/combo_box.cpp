// ComboBox: drop-down with or without edit; the simple one is an edit above an open list.
#include <QAbstractListModel>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <algorithm>

#include "forms/lists.h"
#include "toolkit_qt/colors.h"
#include "toolkit_qt/fonts.h"
#include "toolkit_qt/list_view.h"
#include "toolkit_qt/painted.h"
#include "toolkit_qt/peer.h"
#include "toolkit_qt/peers.h"
#include "toolkit_qt/texts.h"
#include "toolkit_qt/units.h"

namespace corvane::toolkit_qt {
namespace {

constexpr int kEditMargins = 8;  // above and below the text: the height of a combo box is that of its font

void ShowSelection(QLineEdit& edit, const forms::ComboBox& combo) {
  const std::string_view text = combo.Text();
  const auto shown = [](std::string_view part) { return static_cast<int>(ShownText(part).size()); };
  const auto start = static_cast<size_t>(combo.SelStart()), length = static_cast<size_t>(combo.SelLength());
  if (start > text.size()) return;
  const int from = shown(text.substr(0, start)), to = from + shown(text.substr(start, length));
  edit.setCursorPosition(from);
  if (to > from) edit.setSelection(from, to - from);
}

// The rows of the control, read when they are shown.
class RowsModel : public QAbstractListModel {
 public:
  explicit RowsModel(const forms::ComboBox& combo) : combo_(&combo), shown_(static_cast<int>(combo.ListCount())) {}
  void Leave() {
    combo_ = nullptr;
    Renew();
  }
  void Renew() {
    beginResetModel();
    shown_ = combo_ ? static_cast<int>(combo_->ListCount()) : 0;
    endResetModel();
  }
  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : shown_; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (!combo_ || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
    return ShownText(combo_->List(index.row()));
  }

 private:
  const forms::ComboBox* combo_;
  int shown_;
};

class DropDown : public QComboBox {
 public:
  using QComboBox::QComboBox;
  std::function<void()> OnOpen;
  bool Locked = false;
  void showPopup() override {
    if (Locked) return;
    if (OnOpen) OnOpen();
    QComboBox::showPopup();
  }

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

class DropDownPeer : public ControlPeer {
 public:
  DropDownPeer(QtToolkit& toolkit, forms::ComboBox& combo)
      : ControlPeer(toolkit, combo), combo_(combo), shown_(new DropDown(InsideOf(combo.ContainerOf()))) {
    model_ = new RowsModel(combo);
    model_->setParent(shown_);
    shown_->setModel(model_);
    shown_->setEditable(combo.Style() == 0);
    shown_->setInsertPolicy(QComboBox::NoInsert);
    shown_->setMaxVisibleItems(12);
    SetWidget(shown_, Input::Mouse::Untold);
    shown_->OnOpen = [this] {
      Report([this] { combo_.UserDropDown(); });
      if (stale_) ShowRows();
    };
    QObject::connect(shown_, &QComboBox::activated, input_.get(), [this](int row) {
      ReportThenShow(forms::Property::Text, [this, row] { combo_.UserSelect(row); });
    });
    if (QLineEdit* edit = shown_->lineEdit()) {
      shown_->setCompleter(nullptr);
      QObject::connect(edit, &QLineEdit::textEdited, input_.get(), [this](const QString& text) {
        ReportThenShow(forms::Property::ListIndex, [&] { combo_.UserEdit(BytesOf(text)); });
      });
    }
  }
  ~DropDownPeer() override {
    if (!Widget()) return;
    const QSignalBlocker quiet(shown_);
    shown_->OnOpen = nullptr;
    model_->Leave();
  }

 protected:
  QRect ShownPlace() const override {
    QRect place = ControlPeer::ShownPlace();
    place.setHeight(LineHeight(shown_->font()) + kEditMargins);
    return place;
  }
  void ShowFont() override {
    ControlPeer::ShowFont();
    ShowPlace();
  }
  // The rows and the button keep the system's colours; what can be typed in has the control's.
  void ShowColors() override {
    if (QLineEdit* edit = shown_->lineEdit()) edit->setPalette(FieldPalette(combo_.BackColor(), combo_.ForeColor()));
  }
  void ShowOwn(forms::Property property) override {
    using forms::Property;
    shown_->Locked = combo_.Locked();
    if (QLineEdit* edit = shown_->lineEdit()) edit->setReadOnly(combo_.Locked());
    if (property == Property::List && !stale_) {
      stale_ = true;
      QMetaObject::invokeMethod(
          input_.get(),
          [this] {
            if (stale_) ShowRows();
          },
          Qt::QueuedConnection);
    }
    if (property == Property::All) ShowRows();
    if (!stale_ && property != Property::List) ShowText();
    if (shown_->lineEdit() && (property == Property::SelStart || property == Property::SelLength)) {
      ShowSelection(*shown_->lineEdit(), combo_);
    }
  }

 private:
  void ShowRows() {
    stale_ = false;
    const QSignalBlocker quiet(shown_);
    model_->Renew();
    ShowText();
  }
  void ShowText() {
    const QSignalBlocker quiet(shown_);
    const QString text = ShownText(combo_.Text());
    shown_->setCurrentIndex(static_cast<int>(combo_.ListIndex()));
    QLineEdit* edit = shown_->lineEdit();
    if (edit && edit->text() != text) edit->setText(text);
  }
  forms::ComboBox& combo_;
  DropDown* shown_;
  RowsModel* model_;
  bool stale_ = false;
};

class SimplePeer : public ControlPeer {
 public:
  SimplePeer(QtToolkit& toolkit, forms::ComboBox& combo)
      : ControlPeer(toolkit, combo),
        combo_(combo),
        box_(new PaintedWidget(InsideOf(combo.ContainerOf()))),
        edit_(new QLineEdit(box_)),
        view_(new ListView(combo, box_)) {
    SetWidget(box_, Input::Mouse::Untold);
    box_->setFocusProxy(edit_);
    input_->Watch(*edit_, *box_, Input::Mouse::Untold);
    view_->OnChoose = [this](long row) {
      ReportThenShow(forms::Property::Text, [this, row] { combo_.UserSelect(row); });
    };
    view_->OnScroll = [this](long top_row) { Report([this, top_row] { combo_.UserScroll(top_row); }); };
    QObject::connect(edit_, &QLineEdit::textEdited, input_.get(), [this](const QString& text) {
      ReportThenShow(forms::Property::ListIndex, [&] { combo_.UserEdit(BytesOf(text)); });
    });
  }
  ~SimplePeer() override {
    if (Widget()) view_->Leave();
  }

 protected:
  QWidget* FocusTarget() const override { return edit_; }
  void ShowPlace() override {
    ControlPeer::ShowPlace();
    const int height = LineHeight(edit_->font()) + kEditMargins;
    edit_->setGeometry(0, 0, box_->width(), height);
    view_->setGeometry(0, height, box_->width(), std::max(0, box_->height() - height));
  }
  void ShowColors() override { box_->setPalette(FieldPalette(combo_.BackColor(), combo_.ForeColor())); }
  void ShowOwn(forms::Property property) override {
    const QSignalBlocker quiet(edit_);
    edit_->setReadOnly(combo_.Locked());
    if (const QString text = ShownText(combo_.Text()); edit_->text() != text) edit_->setText(text);
    if (property == forms::Property::SelStart || property == forms::Property::SelLength) ShowSelection(*edit_, combo_);
    if (property == forms::Property::TopIndex) view_->ScrollTo(combo_.TopIndex());
    if (property != forms::Property::List) view_->Follow(combo_.ListIndex());
    view_->RowsChanged();
  }

 private:
  forms::ComboBox& combo_;
  PaintedWidget* box_;
  QLineEdit* edit_;
  ListView* view_;
};

}  // namespace

NewPeer NewComboBoxPeer(QtToolkit& toolkit, forms::ComboBox& combo) {
  return std::make_unique<RemadePeer>([&combo] { return combo.Style(); },
                                      [&toolkit, &combo]() -> std::unique_ptr<ControlPeer> {
                                        if (combo.Style() == 1) return std::make_unique<SimplePeer>(toolkit, combo);
                                        return std::make_unique<DropDownPeer>(toolkit, combo);
                                      });
}

}  // namespace corvane::toolkit_qt
