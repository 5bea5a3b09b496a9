#pragma once
// morve-calc's door to the painter: opens morve-render.so the first time a PDF or a
// picture is asked for (render/render_entry.h tells what it offers), so that a case
// that writes neither never loads Qt.
#include <string>

#include "render/render_entry.h"

namespace morve {

// The renderer's entry points, or null with `why` set to what went wrong (no such
// library, or one of another build). Looked for beside the program (a build tree),
// then in the installation's library folder (../lib/ARCH/morve from the program's
// folder). Opened once.
const RenderEntryPoints* loadRenderer(std::string& why);

}  // namespace morve
