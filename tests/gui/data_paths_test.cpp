// Where the help pages are found: an installed program's own folder first, then
// the source tree for a program run from its build tree, then MORVE_DATA_DIR,
// then the configured prefix.
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "gui/data_paths.h"

using namespace morve;

class DataPathsTest : public QObject {
    Q_OBJECT

private slots:
    void theFirstPlaceThatHoldsTheHelpWins() {
        QTemporaryDir tmp;
        const QString t = tmp.path();
        // A program installed with its data, a build tree beside its source, a
        // data folder named by the environment and an installation elsewhere.
        for (const char* d : {"usr/bin", "usr/share/morve/ajuda", "build", "src/data/ajuda", "env/ajuda",
                              "prefix/share/morve/ajuda", "copy", "bare/bin", "envless"})
            QVERIFY(QDir(t).mkpath(d));
        const QString installed = t + "/usr/share/morve/ajuda", source = t + "/src/data/ajuda",
                      env = t + "/env/ajuda", prefix = t + "/prefix/share/morve/ajuda";

        struct Case {
            const char* what;
            QString programDir, sourceData, environment, installData, expected;
        };
        const Case cases[] = {
            {"installed, though all else is there", t + "/usr/bin", t + "/src/data", t + "/env", t + "/prefix/share/morve",
             installed},
            {"build tree before the environment", t + "/build", t + "/src/data", t + "/env", t + "/prefix/share/morve",
             source},
            {"build tree whose source is gone", t + "/build", t + "/gone", t + "/env", t + "/prefix/share/morve", env},
            {"a copied program ignores the source tree", t + "/copy", t + "/src/data", t + "/env",
             t + "/prefix/share/morve", env},
            {"no environment: the prefix", t + "/copy", t + "/src/data", "", t + "/prefix/share/morve", prefix},
            {"environment without help: the prefix", t + "/copy", t + "/src/data", t + "/envless",
             t + "/prefix/share/morve", prefix},
            {"nothing anywhere: where an installed one would be", t + "/bare/bin", t + "/gone", "", t + "/none",
             t + "/bare/share/morve/ajuda"},
        };
        for (const Case& c : cases) {
            const DataPlaces places{c.programDir, t + "/build", c.sourceData, c.environment, c.installData};
            QVERIFY2(chooseHelpFolder(places) == QDir::cleanPath(c.expected),
                     qPrintable(QString(c.what) + ": " + chooseHelpFolder(places)));
        }
    }
};

QTEST_MAIN(DataPathsTest)
#include "data_paths_test.moc"
