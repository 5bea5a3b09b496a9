#pragma once
// The toolbar's "Abrir" and "Salvar" of a module that keeps project files, and a
// project opened from the command line or the file manager. The dialogs are Qt's
// own file dialog with the program's labels and the "*.mor" filter; the name typed
// to save passes the program's name filter key by key, so it can carry neither a
// folder nor an extension, and ".mor" is added to it. A file that is refused shows
// its message and leaves the module exactly as it was, typed texts included.
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

// `morve FILE.mor`: the program starts in the module of the file, with its data.
// False, after a message, when the file is no project of a module that keeps files.
bool startWithProject(MorveApp& app, const QString& path);

}  // namespace morve
