#include "environment/designer_part.h"

#include <utility>

#include "environment/designer_lines.h"
#include "environment/lookup.h"

namespace corvane::environment {

const DesignerItem* DesignerBlock::Find(std::string_view wanted) const {
  for (const DesignerItem& item : items) {
    const bool named =
        item.kind == DesignerItem::Property || (item.kind == DesignerItem::Block && item.block->is_property);
    if (named && SameName(item.name, wanted)) return &item;
  }
  return nullptr;
}

std::vector<DesignerBlockRef> DesignerBlock::Children() const {
  std::vector<DesignerBlockRef> children;
  for (const DesignerItem& item : items)
    if (item.kind == DesignerItem::Block && !item.block->is_property) children.push_back(item.block);
  return children;
}

// Reads line by line; every line ends up in exactly one place of the tree, so that writing the tree is the identity.
class DesignerPart::Reader {
 public:
  explicit Reader(DesignerPart& part) : part_(part) {}

  void Read() {
    std::string_view rest = part_.text_;
    if (const size_t end = rest.find('\n'); end != std::string_view::npos)
      part_.line_end_ = end > 0 && rest[end - 1] == '\r' ? "\r\n" : "\n";
    while (!rest.empty()) {
      const std::string_view raw = CutLine(rest);
      ++line_;
      ReadLine(raw, ClassifyDesignerLine(raw));
    }
    if (block_)
      Problem("the designer part breaks off before its End");
    else if (!part_.root_ && line_ > 0)
      Problem("no Begin in the designer part");
  }

 private:
  void Problem(std::string reason) { part_.problems_.push_back({line_, std::move(reason)}); }

  void ReadLine(std::string_view raw, const DesignerLine& line) {
    if (block_)
      ReadInBlock(raw, line);
    else if (!part_.root_)
      ReadHead(raw, line);
    else
      ReadTail(raw, line);
  }

  void ReadHead(std::string_view raw, const DesignerLine& line) {
    if (line.kind == DesignerLine::Begin) return Open(raw, line);
    part_.head_.push_back(raw);
    const std::string_view text = TrimBlanks(raw);
    if (IsVersionLine(text)) {
      if (IsOlderVersion(text)) Problem("a form of an older version (" + std::string(text) + ")");
    } else if (!text.empty() && !(line.kind == DesignerLine::Property && SameName(line.name, "Object"))) {
      Problem("neither VERSION, Object nor Begin: " + Shown(text));
    }
  }

  void ReadTail(std::string_view raw, const DesignerLine&) {
    part_.tail_.push_back(raw);
    const bool first = !TrimBlanks(raw).empty() && !has_tail_;
    has_tail_ = has_tail_ || first;
    if (first) Problem("behind the End of the designer part: " + Shown(TrimBlanks(raw)));
  }

  void ReadInBlock(std::string_view raw, const DesignerLine& line) {
    if (too_deep_ > 0) return KeepTooDeep(raw, line);
    switch (line.kind) {
      case DesignerLine::Begin:
        if (block_->is_property) Problem("Begin inside BeginProperty");
        return Open(raw, line);
      case DesignerLine::BeginProperty:
        return Open(raw, line);
      case DesignerLine::End:
      case DesignerLine::EndProperty:
        return Close(raw, line.kind == DesignerLine::EndProperty);
      case DesignerLine::Property:
        if (!IsValueClosed(line.value)) Problem("text without its closing quote: " + Shown(TrimBlanks(raw)));
        block_->items.push_back({DesignerItem::Property, raw, line.name, nullptr});
        return;
      case DesignerLine::Blank:
        return KeepLine(raw);
      case DesignerLine::Unknown:
        Problem("neither a property nor Begin or End: " + Shown(TrimBlanks(raw)));
        KeepLine(raw);
    }
  }

  void KeepLine(std::string_view raw) { block_->items.push_back({DesignerItem::Other, raw, {}, nullptr}); }

  // The blocks below the deepest level are lines of the block that holds them.
  void KeepTooDeep(std::string_view raw, const DesignerLine& line) {
    KeepLine(raw);
    if (line.kind == DesignerLine::Begin || line.kind == DesignerLine::BeginProperty) ++too_deep_;
    if (line.kind == DesignerLine::End || line.kind == DesignerLine::EndProperty) --too_deep_;
  }

  void Open(std::string_view raw, const DesignerLine& line) {
    if (block_ && block_->depth + 1 == kDeepestLevel) {
      if (!std::exchange(has_too_deep_, true))
        Problem("nested too deeply: more than " + std::to_string(kDeepestLevel) + " levels");
      return KeepTooDeep(raw, line);
    }
    auto block = std::make_shared<DesignerBlock>();
    block->is_property = line.kind == DesignerLine::BeginProperty;
    block->begin = raw;
    block->type = line.value;
    block->name = line.name;
    block->line = line_;
    block->parent = block_;
    block->depth = block_ ? block_->depth + 1 : 0;
    DesignerBlock* opened = block.get();
    if (block_)
      block_->items.push_back({DesignerItem::Block, {}, line.name, std::move(block)});
    else
      part_.root_ = std::move(block);
    block_ = opened;
  }

  void Close(std::string_view raw, bool is_property) {
    if (block_->is_property != is_property) {
      Problem(is_property ? "EndProperty where End is due" : "End where EndProperty is due");
      return KeepLine(raw);
    }
    block_->end = raw;
    block_ = block_->parent;
  }

  DesignerPart& part_;
  DesignerBlock* block_ = nullptr;
  long line_ = 0;
  long too_deep_ = 0;          // open blocks below the deepest level
  bool has_too_deep_ = false;  // and
  bool has_tail_ = false;      // a line with text behind the End: each reported once
};

DesignerPart::DesignerPart(std::string text) : text_(std::move(text)) {
  Reader(*this).Read();
}

namespace {

void WriteBlock(const DesignerBlock& block, std::string& out) {
  out += block.begin;
  for (const DesignerItem& item : block.items) {
    if (item.kind == DesignerItem::Block)
      WriteBlock(*item.block, out);
    else
      out += item.raw;
  }
  out += block.end;
}

std::string Indent(int depth) {
  return std::string(3 * static_cast<size_t>(depth), ' ');
}

}  // namespace

std::string DesignerPart::Write() const {
  std::string out;
  out.reserve(text_.size() + 256);
  for (const std::string_view line : head_) out += line;
  if (root_) WriteBlock(*root_, out);
  for (const std::string_view line : tail_) out += line;
  return out;
}

std::string_view DesignerPart::Keep(std::string text) {
  return kept_.emplace_back(std::move(text));
}

void DesignerPart::SetRaw(DesignerItem& item, std::string raw) {
  item.raw = Keep(std::move(raw));
  item.name = ClassifyDesignerLine(item.raw).name;
}

void DesignerPart::SetBegin(DesignerBlock& block, std::string_view type, std::string_view name) {
  // What stands before, between and behind type and name stays as it was written.
  const size_t type_at = static_cast<size_t>(block.type.data() - block.begin.data());
  const size_t name_at = static_cast<size_t>(block.name.data() - block.begin.data());
  std::string begin(block.begin.substr(0, type_at));
  begin += type;
  begin += block.begin.substr(type_at + block.type.size(), name_at - type_at - block.type.size());
  const size_t new_name_at = begin.size();
  begin += name;
  begin += block.begin.substr(name_at + block.name.size());
  block.begin = Keep(std::move(begin));
  block.type = block.begin.substr(type_at, type.size());
  block.name = block.begin.substr(new_name_at, name.size());
}

DesignerItem DesignerPart::NewProperty(std::string raw) {
  const std::string_view kept = Keep(std::move(raw));
  return {DesignerItem::Property, kept, ClassifyDesignerLine(kept).name, nullptr};
}

DesignerBlockRef DesignerPart::NewBlock(DesignerBlock& parent, bool is_property, std::string_view type,
                                        std::string_view name) {
  auto block = std::make_shared<DesignerBlock>();
  block->is_property = is_property;
  block->parent = &parent;
  block->depth = parent.depth + 1;
  const std::string indent = Indent(block->depth), line_end(line_end_);
  const std::string words =
      is_property ? "BeginProperty " + std::string(name) + " " + (type.empty() ? "" : std::string(type) + " ")
                  : "Begin " + std::string(type) + " " + std::string(name) + " ";
  block->begin = Keep(indent + words + line_end);
  block->end = Keep(indent + (is_property ? "EndProperty" : "End") + line_end);
  const DesignerLine line = ClassifyDesignerLine(block->begin);
  block->type = line.value;
  block->name = line.name;
  return block;
}

}  // namespace corvane::environment
