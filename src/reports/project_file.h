#pragma once
// Project files (".mor"): a module's inputs kept in a text file between runs.
//
// The file is a run of comma-separated fields in the style of the old sequential
// files: a text is written in double quotes (a quote inside it doubled), a count or
// a list's selection as a plain integer, an option as #TRUE# or #FALSE#, one line
// per field. The first line is the module tag, the module's key. Then come the
// module's project fields in order: a box as its text, a list as the index of its
// selection (-1 for none), an option or check as its state, and a grid as its row
// count on a line of its own followed by one line per row with the row's cells
// (the numbering column left out, since the program writes it).
//
// Reading is all or nothing: the file is read into a copy of the module's state,
// and only a file read to its end without a fault replaces the module's data.
#include <string>

#include "app/form_state.h"

namespace morve {

class Module;

// Refused files and failed saves come back with the text to show; "" means done.
struct ProjectResult {
    std::string message;
    bool ok() const { return message.empty(); }
};

// The text of the project file of a module's current inputs.
std::string writeProjectText(const Module& module, const FormState& state);
// Reads a project file's text into the module's state; a refused text leaves the
// state exactly as it was. A read file blanks the results of the case before it
// and disables "Imprimir" until the next calculation.
ProjectResult readProjectText(const Module& module, const std::string& text, FormState& state);

// Saving writes a temporary file beside the target and renames it over the target,
// so an interrupted save never leaves half a project under the user's name.
ProjectResult saveProjectFile(const Module& module, const FormState& state, const std::string& path);
// The same for a text already written, so that the writing can go to another thread.
ProjectResult saveProjectText(const std::string& text, const std::string& path);
ProjectResult openProjectFile(const Module& module, const std::string& path, FormState& state);

// The module tag a file starts with ("" when it has none): which module opens it.
std::string projectFileTag(const std::string& path);
// The same from the file's text.
std::string projectTextTag(const std::string& text);

// The name typed in the save dialog, as its box filters it key by key: control
// characters and " * + , . / \ ` | and DEL become "_", so a typed name can carry
// no extension or folder of its own.
std::string filterProjectName(const std::string& typed);
// The file name a typed name is saved under: filtered, with ".mor" added.
std::string projectFileName(const std::string& typed);

}  // namespace morve
