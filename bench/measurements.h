// What is measured. Each adds its rows to the table; all but the scripts work on generated projects of three sizes.
#pragma once

#include <string>
#include <vector>

#include "bench/generate_project.h"
#include "bench/table.h"

namespace corvane::bench {

// The projects, the smallest first, and where our programs are.
struct Setting {
  std::vector<GeneratedProject> projects;
  std::string tree;     // the sources
  std::string program;  // corvane
  std::string self;     // this program
  std::string scratch;  // folder for files of the moment
};

// The code of all its modules, one behind the other.
std::string CodeOf(const GeneratedProject& project);

// Analysing a text into stored lines with marks, and Scintilla's lexer for Visual Basic on the same text.
void MeasureAnalysis(const Setting& setting, Table& table);

// `corvane list --procedures` as a whole process, and universal-ctags over the same files.
void MeasureListing(const Setting& setting, Table& table);

// A word in any case in the open project, all hits listed, and grep over the same files.
void MeasureSearch(const Setting& setting, Table& table);

// Resident memory of the open project, and once every module was asked for a procedure and searched.
void MeasureMemory(const Setting& setting, Table& table);
// What the process that is measured does: opens [project], prints the resident bytes that it took, open and then
// searched, ends. Returns its exit status.
int OpenAndTellMemory(const std::string& project);

// The code list on the Qt canvas, without a display.
void MeasurePainting(const Setting& setting, Table& table);

// The commands of a loaded list that walk over all its lines, on a window that nobody draws.
void MeasureCommands(const Setting& setting, Table& table);

// The hits of a search as rows of the explorer, and steps in long lists of them.
void MeasureResults(const Setting& setting, Table& table);

// The explorer's search of the whole project for a word that is nowhere.
void MeasureDeclaration(const Setting& setting, Table& table);

// `corvane script` as a whole process, and the same programs in other languages.
void MeasureScripts(const Setting& setting, Table& table);

}  // namespace corvane::bench
