#include "tests/stage/enumerator.h"

#include "tests/stage/published.h"
#include "tests/stage/stage.h"

namespace corvane::stage {

namespace {

class Enumerator : public IEnumVARIANT {
 public:
  using Item = std::function<void(Call& answer, long position)>;
  Enumerator(Stage& stage, long count, Item item, long position = 0)
      : stage_(stage), count_(count), item_(std::move(item)), position_(position) {
    ++stage_.ledger.objects;
    ++stage_.ledger.references;
  }
  virtual ~Enumerator() { --stage_.ledger.objects; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
    const bool known = IsEqualIID(id, IID_IUnknown) || IsEqualIID(id, IID_IEnumVARIANT);
    *object = known ? this : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override {
    ++stage_.ledger.references;
    return ++references_;
  }
  ULONG STDMETHODCALLTYPE Release() override {
    --stage_.ledger.references;
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* items, ULONG* fetched) override {
    if (fetched) *fetched = 0;
    for (ULONG given = 0; given < wanted; ++given) {
      if (const auto failure = stage_.ledger.Enter("Enumerator.Next")) return Raise(*failure, nullptr);
      if (position_ >= count_) return S_FALSE;
      try {
        DISPPARAMS none{};
        Call answer(stage_, nullptr, none);
        item_(answer, ++position_);
        answer.MoveResultTo(&items[given]);
      } catch (const host::Error&) {
        return E_FAIL;
      }
      if (fetched) ++*fetched;
    }
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
    const long left = count_ - position_;
    position_ += std::min<long>(left, static_cast<long>(count));
    return left >= static_cast<long>(count) ? S_OK : S_FALSE;
  }
  HRESULT STDMETHODCALLTYPE Reset() override {
    position_ = 0;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override {
    *copy = new Enumerator(stage_, count_, item_, position_);
    return S_OK;
  }

 private:
  Stage& stage_;
  long count_;
  Item item_;
  long position_;
  ULONG references_ = 1;
};

}  // namespace

IUnknown* NewEnumerator(Stage& stage, long count, std::function<void(Call& answer, long position)> item) {
  return new Enumerator(stage, count, std::move(item));
}

}  // namespace corvane::stage
