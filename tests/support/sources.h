// Modules for test projects, from their code lines: the heads that stand in their files are put in front.
#pragma once

#include <string>
#include <vector>

#include "environment/environment.h"

namespace corvane::tests {

using Code = std::vector<std::string>;

inline std::string Joined(const Code& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

inline environment::SourceFile Bas(const std::string& name, const Code& lines) {
  return {name + ".bas", "Attribute VB_Name = \"" + name + "\"\r\n" + Joined(lines)};
}

inline environment::SourceFile Cls(const std::string& name, const Code& lines) {
  return {name + ".cls", "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\nAttribute VB_Name = \"" +
                             name + "\"\r\n" + Joined(lines)};
}

inline environment::SourceFile Designer(const std::string& root, const std::string& name, const std::string& extension,
                                        const Code& lines) {
  return {name + extension, "VERSION 5.00\r\nBegin " + root + " " + name + " \r\n   ClientHeight    =   3000\r\n" +
                                "   ClientWidth     =   4000\r\nEnd\r\nAttribute VB_Name = \"" + name + "\"\r\n" +
                                Joined(lines)};
}

inline environment::SourceFile Frm(const std::string& name, const Code& lines) {
  return Designer("VB.Form", name, ".frm", lines);
}
inline environment::SourceFile MdiFrm(const std::string& name, const Code& lines) {
  return Designer("VB.MDIForm", name, ".frm", lines);
}
inline environment::SourceFile Ctl(const std::string& name, const Code& lines) {
  return Designer("VB.UserControl", name, ".ctl", lines);
}
inline environment::SourceFile Pag(const std::string& name, const Code& lines) {
  return Designer("VB.PropertyPage", name, ".pag", lines);
}

}  // namespace corvane::tests
