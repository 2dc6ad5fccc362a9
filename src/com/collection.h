// WrappedCollection: a collection of the environment, by its Count and Item.
#pragma once

#include "com/objects.h"

namespace corvane::com {

// [Base] is the contract's collection of [Element]s.
template <class Base, class Element>
class WrappedCollection : public Base, public Wrapped {
 public:
  using Wrapped::Wrapped;
  long Count() override { return object_.Get(L"Count").ToLong(); }
  host::Ref<Element> Item(const host::Index& index) override {
    return WrapExisting<Element>(object_.Has(L"Item") ? object_.Get(L"Item", index) : object_.GetDefault(index));
  }
};

}  // namespace corvane::com
