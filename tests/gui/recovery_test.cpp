// Recovery after a crash: a child program types a continuous beam in full and
// presses "CALCULAR"; it is killed with SIGKILL; the next start offers the data
// back and every input comes back. "Não" deletes the file; a damaged file is
// refused with a message and the program starts as usual; the check for changes
// writes what was typed without a calculation; a clean close deletes the file.
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QTest>

#include <csignal>
#include <fstream>
#include <iostream>
#include <unistd.h>

#include "gui/gui_prompter.h"
#include "gui/main_window.h"
#include "gui/module_host.h"
#include "gui/recovery_keeper.h"
#include "gui/screen_window.h"
#include "reports/recovery_file.h"
#include "gui_test_support.h"

using namespace morve;

namespace {

const std::string kModule = "Form34";
const QString kTyped = QStringLiteral("7.25");

// A distinct text in every box and cell the module's files keep, five rows a table.
void fillEveryInput(FormState& s) {
    int n = 0;
    for (const std::string& name : ModuleRegistry::find(kModule)->projectFields()) {
        const ControlDecl* d = s.declaration(name);
        if (d->kind == ControlKind::TextBox) s.setText(name, std::to_string(++n) + ".5");
        if (d->kind != ControlKind::Grid) continue;
        s.resizeGrid(name, 5);
        for (std::size_t r = 1; r < s.grid(name).size(); ++r)
            for (std::size_t c = d->grid.firstColumnLocked ? 1 : 0; c < s.grid(name)[r].size(); ++c)
                s.grid(name)[r][c] = std::to_string(++n);
    }
}

QLineEdit* firstBox(MorveApp& app) {
    return qobject_cast<QLineEdit*>(app.module()->mainWindow()->control("Text1"));
}

// The child: types, calculates, says so and waits to be killed.
int typeAndWait() {
    ProgramInModule program(kModule);
    MorveApp& app = program.app;
    fillEveryInput(app.module()->session().state());
    app.module()->refreshWindows();
    firstBox(app)->clear();
    QTest::keyClicks(firstBox(app), kTyped);
    app.module()->press(kModule, app.module()->session().info().calculate);
    std::cout << "pronto" << std::endl;
    return QApplication::exec();
}

}  // namespace

class RecoveryTest : public QObject {
    Q_OBJECT

private slots:
    void init() { removeRecoveryFile(); }

    void whatWasTypedComesBackAfterSigkill() {
        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("MORVE_RECOVERY_CHILD", "1");
        child.setProcessEnvironment(env);
        child.start(QCoreApplication::applicationFilePath(), {});
        QVERIFY(child.waitForStarted());
        QByteArray out;
        while (!out.contains("pronto") && child.waitForReadyRead(20000)) out += child.readAllStandardOutput();
        QVERIFY2(out.contains("pronto"), out.constData());
        ::kill(static_cast<pid_t>(child.processId()), SIGKILL);
        QVERIFY(child.waitForFinished());
        QVERIFY(recoveryFileExists());

        ScriptedPrompter prompter({"yes"});
        setGuiPrompter(&prompter);
        MorveApp app(quickOptions());
        QVERIFY(offerRecovery(app));
        settle();
        QCOMPARE(prompter.messages().front().text, std::string("Recuperar os dados digitados na última sessão?"));
        QVERIFY(app.module());
        FormState expected = ModuleSession(*ModuleRegistry::find(kModule), app.defaults()).state();
        fillEveryInput(expected);
        expected.setText(kModule + ".Text1", kTyped.toStdString());
        const FormState& got = app.module()->session().state();
        for (const std::string& name : ModuleRegistry::find(kModule)->projectFields()) {
            QCOMPARE(got.text(name), expected.text(name));
            QVERIFY2(got.grid(name) == expected.grid(name), name.c_str());
        }
        QCOMPARE(firstBox(app)->text(), kTyped);
        // A clean close leaves nothing to recover.
        app.returnToMenu();
        settle();
        QVERIFY(!recoveryFileExists());
        setGuiPrompter(nullptr);
    }

    void noDeletesTheFileAndADamagedOneIsRefused() {
        const Module& module = *ModuleRegistry::find(kModule);
        QVERIFY(writeRecoveryFile(writeProjectText(module, ModuleSession(module, {}).state())).ok());
        ScriptedPrompter no({"no"});
        setGuiPrompter(&no);
        MorveApp first(quickOptions());
        QVERIFY(!offerRecovery(first));
        QVERIFY(!recoveryFileExists() && !first.module());

        std::ofstream(recoveryFilePath(), std::ios::binary) << "\"" << kModule << "\"\r\n\"1\"\r\n\"cortado";
        ScriptedPrompter yes({"yes"});
        setGuiPrompter(&yes);
        MorveApp second(quickOptions());
        QVERIFY(!offerRecovery(second));
        QVERIFY(!second.module() && !recoveryFileExists());
        QCOMPARE(yes.messages().back().text, "Não foi possível recuperar os dados da última sessão: o arquivo de "
                                             "recuperação " + recoveryFilePath() + " está danificado.");
        setGuiPrompter(nullptr);
    }

    void aChangeIsWrittenWithoutACalculation() {
        RecoveryKeeper::setInterval(50);
        ProgramInModule program(kModule);
        MorveApp& app = program.app;
        firstBox(app)->clear();
        QTest::keyClicks(firstBox(app), kTyped);
        QTRY_VERIFY_WITH_TIMEOUT(recoveryFileExists(), 2000);
        FormState read = app.module()->session().state();
        QVERIFY(openProjectFile(app.module()->session().module(), recoveryFilePath(), read).ok());
        QCOMPARE(QString::fromStdString(read.text(kModule + ".Text1")), kTyped);
        app.shutdown();
        settle();
        QTRY_VERIFY(!recoveryFileExists());
    }
};

int main(int argc, char** argv) {
    // A state folder of its own: the other gui tests, run beside this one, keep
    // recovery files of their modules too. The child inherits it.
    if (!qEnvironmentVariableIsSet("MORVE_RECOVERY_CHILD"))
        qputenv("XDG_STATE_HOME", (QDir::tempPath() + "/morve-recovery-test-" + QString::number(getpid())).toUtf8());
    QApplication qapp(argc, argv);
    if (qEnvironmentVariableIsSet("MORVE_RECOVERY_CHILD")) return typeAndWait();
    RecoveryTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "recovery_test.moc"
