#pragma once
// Files the user asked for are replaced in one step: written to a hidden temporary
// beside the target (so that the rename stays within one file system), synced, and
// renamed over it. A failed write leaves the old file as it was and no temporary.
#include <functional>
#include <string>

namespace morve {

// "" when done, else why not in the user's words ("o disco está cheio").
std::string replaceFileWithText(const std::string& path, const std::string& text);
// For libraries that write to a file name (a workbook, a DXF): `write` fills the
// temporary it is given and says whether it could; errno tells why it could not.
std::string replaceFileBy(const std::string& path, const std::function<bool(const std::string& temporary)>& write);

}  // namespace morve
