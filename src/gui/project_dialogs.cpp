#include "gui/project_dialogs.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include "gui/gui_prompter.h"
#include "gui/module_host.h"
#include "gui/morve_app.h"
#include "gui/recent_files.h"
#include "reports/project_file.h"

namespace morve {

namespace {

QString& projectFolder() {
    // At first the folder the program was started in, as the report's PDF dialog.
    static QString folder = QDir::currentPath();
    return folder;
}

std::string local(const QString& path) { return QFile::encodeName(path).toStdString(); }

// Qt's dialog dressed as the program's: its labels, its filter of "*.mor" files,
// and the tool tips of its buttons. The accept mode comes first: setting it
// builds the buttons anew.
void dress(QFileDialog& dialog, bool saving) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);  // the labels are only ours on Qt's own dialog
    dialog.setDirectory(projectFolder());
    dialog.setNameFilter(QStringLiteral("*.mor"));
    dialog.setLabelText(QFileDialog::LookIn, saving ? QStringLiteral("Salvar em:") : QStringLiteral("Examinar:"));
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("Nome do arquivo:"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Arquivo do tipo:"));
    dialog.setLabelText(QFileDialog::Accept, saving ? QStringLiteral("&Salvar") : QStringLiteral("&Abrir"));
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Cancelar"));
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) {
        for (QAbstractButton* b : buttons->buttons()) {
            if (buttons->buttonRole(b) == QDialogButtonBox::RejectRole)
                b->setToolTip(QStringLiteral("Voltar para a tela anterior"));
            else if (!saving && buttons->buttonRole(b) == QDialogButtonBox::AcceptRole)
                b->setToolTip(QStringLiteral("Abrir o arquivo"));
        }
    }
}

}  // namespace

void setProjectFolder(const QString& folder) { projectFolder() = folder; }

QString savedProjectPath(const QString& chosen) {
    // The dialog carries the folder (one typed before the name too, "obra/laje_L2");
    // the name's filter sees the base name alone, without the ".mor" it may end in.
    const QFileInfo file(chosen);
    QString base = file.fileName();
    if (base.endsWith(QStringLiteral(".mor"))) base.chop(4);
    return QDir(file.absolutePath()).filePath(QString::fromStdString(projectFileName(base.toStdString())));
}

bool openProjectInto(ModuleHost& host, const std::string& path) {
    // The windows are shown anew from the state after a read, so what was typed in
    // boxes the file does not keep goes to the state first.
    host.storeWindows();
    const ProjectResult r = openProjectFile(host.session().module(), path, host.session().state());
    if (!r.ok()) {
        guiPrompter().warn(r.message);
        return false;
    }
    host.refreshWindows();
    noteRecentFile(QFile::decodeName(path.c_str()));
    return true;
}

bool saveProjectFrom(ModuleHost& host, const std::string& path) {
    // The file keeps what the boxes show, typed since the last command or not.
    host.storeWindows();
    const ProjectResult r = saveProjectFile(host.session().module(), host.session().state(), path);
    if (!r.ok()) {
        guiPrompter().warn(r.message);
        return false;
    }
    noteRecentFile(QFile::decodeName(path.c_str()));
    return true;
}

void openProjectFromDialog(ModuleHost& host, QWidget* parent) {
    QFileDialog dialog(parent, QStringLiteral(" Abrir arquivo"));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dress(dialog, false);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
    const QString path = dialog.selectedFiles().front();
    setProjectFolder(QFileInfo(path).absolutePath());
    openProjectInto(host, local(path));
}

void saveProjectFromDialog(ModuleHost& host, QWidget* parent) {
    QFileDialog dialog(parent, QStringLiteral(" Salvar arquivo"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dress(dialog, true);
    // A project is saved over a file of the same name without a question.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
    const QString path = savedProjectPath(dialog.selectedFiles().front());
    setProjectFolder(QFileInfo(path).absolutePath());
    saveProjectFrom(host, local(path));
}

bool startWithProject(MorveApp& app, const QString& path) {
    const std::string file = local(path);
    if (!QFileInfo(path).isFile()) {
        guiPrompter().warn("Não foi possível abrir o arquivo " + path.toStdString() + ".");
        return false;
    }
    const std::string key = projectFileTag(file);
    const Module* module = ModuleRegistry::find(key);
    if (!module) {
        guiPrompter().warn("O arquivo " + path.toStdString() + " não é um arquivo de projeto do MORVE.");
        return false;
    }
    app.startInModule(key);
    setProjectFolder(QFileInfo(path).absolutePath());
    if (ModuleHost* host = app.module()) openProjectInto(*host, file);
    return true;
}

}  // namespace morve
