// CommandBarSet: the bars of the environment, as the host's CommandBars and as the desk's CommandBarModel.
// EventSource: the events of their controls, and the build events.
#pragma once

#include <functional>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "environment/command_bar_model.h"
#include "host/command_bars.h"
#include "host/services.h"

namespace corvane::environment {

// Handlers that are bound and unbound while one of them may be running.
template <class Handler>
class HandlerList {
 public:
  std::unique_ptr<host::Subscription> Bind(Handler handler) {
    handlers_->push_back(std::make_shared<Handler>(std::move(handler)));
    return std::make_unique<Bound>(handlers_, handlers_->back());
  }
  bool IsEmpty() const { return handlers_->empty(); }
  // Each handler bound at the time of the call, unless it is unbound before its turn.
  template <class Call>
  void Raise(Call call) {
    const std::list<std::shared_ptr<Handler>> bound = *handlers_;
    auto alive = handlers_;
    for (const auto& handler : bound)
      if (IsBound(*alive, handler)) call(*handler);
  }

 private:
  using List = std::list<std::shared_ptr<Handler>>;
  static bool IsBound(const List& list, const std::shared_ptr<Handler>& handler) {
    for (const auto& bound : list)
      if (bound == handler) return true;
    return false;
  }
  struct Bound : host::Subscription {
    Bound(std::weak_ptr<List> list, std::shared_ptr<Handler> handler) : list(list), handler(handler) {}
    ~Bound() override {
      if (auto alive = list.lock()) alive->remove(handler);
    }
    std::weak_ptr<List> list;
    std::shared_ptr<Handler> handler;
  };
  std::shared_ptr<List> handlers_ = std::make_shared<List>();
};

class CommandBarSet : public CommandBarModel, public std::enable_shared_from_this<CommandBarSet> {
 public:
  // The bars and menus of the environment with its own controls. PasteFace takes its picture from [clipboard] (Error 91
  // without one); [changed] is called after every change. Neither may be used after Detach().
  static std::shared_ptr<CommandBarSet> Create(host::Clipboard* clipboard, std::function<void()> changed);
  void Detach();

  host::Ref<host::CommandBars> HostBars();
  // Error 91 for Nothing, for a control that was deleted or is not of this set.
  host::Ref<host::CommandBarEvents> EventsOf(const host::Ref<host::CommandBarControl>& control);

  const std::vector<Bar>& Bars() const override { return bars_; }
  const Bar* Find(const std::string& name) const override;
  void AddOwn(const std::string& bar, BarControl control) override;
  void RemoveBar(const std::string& name) override;
  bool Click(long id) override;

 private:
  class HostControl;
  class HostControls;
  class HostBar;
  class HostBarList;
  class HostEvents;
  CommandBarSet() = default;
  Bar* FindBar(const std::string& name);
  BarControl* FindControl(long id);
  BarControl& ExistingControl(long id);  // Error 91
  void Changed();

  std::vector<Bar> bars_;
  std::map<long, HandlerList<host::ClickHandler>> handlers_;
  long last_id_ = 0;
  host::Clipboard* clipboard_ = nullptr;
  std::function<void()> changed_;
};

class EventSource : public host::Events {
 public:
  explicit EventSource(std::shared_ptr<CommandBarSet> bars) : bars_(std::move(bars)) {}
  host::Ref<host::CommandBarEvents> CommandBarEvents(const host::Ref<host::CommandBarControl>& control) override;
  host::Ref<host::VBBuildEvents> VBBuildEvents() override;

  bool OffersBuildEvents() const { return offers_build_events_; }
  void SetOffersBuildEvents(bool value) { offers_build_events_ = value; }
  void RaiseEnterRunMode();

 private:
  class BuildEvents;
  std::shared_ptr<CommandBarSet> bars_;
  std::shared_ptr<HandlerList<std::function<void()>>> run_mode_ =
      std::make_shared<HandlerList<std::function<void()>>>();
  bool offers_build_events_ = true;
};

}  // namespace corvane::environment
