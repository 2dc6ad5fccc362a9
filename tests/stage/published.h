// Published: one object of the environment as a COM object, by the table of its members.
#pragma once

#include <memory>

#include "tests/stage/ledger.h"
#include "tests/stage/tables.h"

namespace corvane::stage {

class Stage;

class Published : public IDispatch {
 public:
  // With one reference, the caller's.
  Published(Stage& stage, std::shared_ptr<void> target, const ObjectTable& table);
  virtual ~Published();

  const ObjectTable& Table() const { return table_; }
  const std::shared_ptr<void>& Target() const { return target_; }
  Stage& TheStage() const { return stage_; }
  // The published object behind [object], null for an alien one.
  static const Published* Of(IUnknown* object);

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override;
  ULONG STDMETHODCALLTYPE AddRef() override;
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID language, ITypeInfo** info) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID language, DISPID* ids) override;
  HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID language, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT* bad_argument) override;

 protected:
  // Interfaces beyond IUnknown and IDispatch, with a reference; null for none.
  virtual void* More(REFIID) { return nullptr; }
  Ledger& Book() const;

 private:
  bool IsMissing(const Member& member) const;
  const Member* ByName(const wchar_t* name) const;
  const Member* ByNumber(DISPID id) const;
  HRESULT Answer(const Member& member, WORD flags, DISPPARAMS& parameters, VARIANT* result, EXCEPINFO* exception,
                 UINT* bad_argument);

  Stage& stage_;
  std::shared_ptr<void> target_;
  const ObjectTable& table_;
  long born_;  // the how manieth object of its stage
  LONG references_ = 1;
};

// Objects that raise events are connection point containers besides.
Published* NewPublished(Stage& stage, const std::shared_ptr<void>& target, const ObjectTable& table);

// Puts the Error into [exception], where there is one; returns the code of the call.
HRESULT Raise(const Failure& failure, EXCEPINFO* exception, bool defer_text = false);

}  // namespace corvane::stage
