#pragma once
// Writes a module's report to a file, by its extension: plain text with form
// feeds between pages, or PDF through the same painter the desktop prints with
// (loaded on demand, cli/renderer.h); and a picture of the module to a picture file.
#include <string>

#include "app/module.h"

namespace morve {

// "" on success, otherwise what went wrong.
std::string writeReportFile(const ModuleSession& session, const std::string& path,
                            std::string key, const std::string& denomination);

// The drawing of a picture box ("Form40d.Picture1") after the case's presses, to a
// GIF, PNG or SVG file by its extension; "" on success, otherwise what went wrong.
std::string writePictureFile(const ModuleSession& session, const std::string& picture, const std::string& path);

}  // namespace morve
