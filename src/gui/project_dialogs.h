#pragma once
// The toolbar's "Abrir" and "Salvar" of a module that keeps project files, and a
// project opened from the command line or the file manager. The dialogs are Qt's
// own file dialog with the program's labels and the "*.mor" filter; the base name
// of a file to save passes the program's name filter and gets ".mor", while the
// folder is the dialog's. A file that is refused shows its message and leaves the
// module exactly as it was, typed texts included.
#include <QString>

#include <string>

class QWidget;

namespace morve {

class ModuleHost;
class MorveApp;

void openProjectFromDialog(ModuleHost& host, QWidget* parent);
void saveProjectFromDialog(ModuleHost& host, QWidget* parent);

// The same without the dialogs; true when the file was read or written.
bool openProjectInto(ModuleHost& host, const std::string& path);
bool saveProjectFrom(ModuleHost& host, const std::string& path);

// The folder the dialogs start in; it follows the last file opened or saved.
void setProjectFolder(const QString& folder);
// Where a project goes when the save dialog returns this path: its folder, and its
// base name filtered with ".mor" added ("laje L2.mor" stays "laje L2.mor").
QString savedProjectPath(const QString& chosen);

// `morve FILE.mor`: the program starts in the module of the file, with its data.
// False, after a message, when the file is no project of a module that keeps files.
bool startWithProject(MorveApp& app, const QString& path);

}  // namespace morve
