// Every window of every registered module on the screen of a student's laptop
// (the run's screen: 1366x768 and 1280x720 are run by ctest): after Load, and
// after the presses of each example case, each window lies on the screen, its
// parts stand apart, its texts fit and every box can be reached. New modules and
// new examples are walked with no change here.
#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTableWidget>
#include <QTest>

#include <fstream>
#include <memory>
#include <sstream>

#include "cli/case_runner.h"
#include "cli/project_case.h"
#include "gui/screen_window.h"
#include "gui/window_places.h"
#include "gui_test_support.h"

using namespace morve;

namespace {

QString nameOf(const QWidget* w) {
    return w->objectName().isEmpty() ? QString::fromUtf8(w->metaObject()->className()) : w->objectName();
}

QString rectText(const QRect& r) { return QString("%1x%2+%3+%4").arg(r.width()).arg(r.height()).arg(r.x()).arg(r.y()); }

// The widest line of a text as this widget's font draws it.
int textWidth(const QWidget* w, const QString& text) {
    int widest = 0;
    for (const QString& line : text.split('\n')) widest = std::max(widest, w->fontMetrics().horizontalAdvance(line));
    return widest;
}

class WindowCheck {
public:
    WindowCheck(ScreenWindow* w, QString when) : w_(w), where_(QString::fromStdString(w->name()) + " " + when) {}

    QStringList run() {
        if (!screenArea(w_).contains(framedGeometry(w_)))
            fault("a janela " + rectText(framedGeometry(w_)) + " passa da tela " + rectText(screenArea(w_)));
        page_ = w_->findChild<QScrollArea*>("page");
        if (!page_ || !page_->widget()) return fault("sem página"), faults_;
        // Only tall pages scroll: a page wider than the window would hide its
        // right side from a user reading down it.
        if (page_->widget()->width() > page_->viewport()->width())
            fault(QString("a página de largura %1 não cabe na janela de largura %2")
                      .arg(page_->widget()->width())
                      .arg(page_->viewport()->width()));
        containersApart(w_);
        containersApart(page_->widget());
        for (QWidget* frame : page_->widget()->findChildren<QWidget*>(QRegularExpression("^Frame")))
            containersApart(frame);
        for (const ControlDecl& c : w_->declaration().controls) {
            QWidget* control = w_->control(c.name);
            if (!control->isVisibleTo(w_)) continue;
            reachable(control);
            textsFit(control, c);
        }
        for (auto* label : page_->widget()->findChildren<QLabel*>()) {
            if (label->isVisibleTo(w_) && !label->parentWidget()->inherits("QAbstractScrollArea")) labelFits(label);
        }
        return faults_;
    }

private:
    void fault(const QString& text) { faults_ << where_ + ": " + text; }

    // Widgets the window's layouts place side by side never cover each other.
    void containersApart(QWidget* parent) {
        QList<QWidget*> kids;
        for (QWidget* kid : parent->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (kid->isVisibleTo(w_) && !kid->isWindow()) kids << kid;
        for (int i = 0; i < kids.size(); ++i)
            for (int j = i + 1; j < kids.size(); ++j)
                if (kids[i]->geometry().intersects(kids[j]->geometry()))
                    fault(nameOf(kids[i]) + " " + rectText(kids[i]->geometry()) + " cobre " + nameOf(kids[j]) + " " +
                          rectText(kids[j]->geometry()));
    }

    // Within its frame, and the frame within the page: what the page does not
    // show at once, its scroll bars reach.
    void reachable(QWidget* control) {
        for (QWidget* w = control; w && w != page_->widget() && w != w_; w = w->parentWidget()) {
            QWidget* parent = w->parentWidget();
            if (!parent || parent->rect().contains(w->geometry())) continue;
            fault(nameOf(control) + " cortado: " + nameOf(w) + " " + rectText(w->geometry()) + " fora de " +
                  nameOf(parent) + " " + rectText(parent->rect()));
            return;
        }
    }

    void labelFits(QLabel* label) {
        if (label->wordWrap()) {
            if (label->height() < label->heightForWidth(label->width()))
                fault("o texto de " + nameOf(label) + " \"" + label->text() + "\" é cortado embaixo");
        } else if (label->width() < label->sizeHint().width() || label->height() < label->sizeHint().height()) {
            fault("o texto \"" + label->text() + "\" não cabe em " + rectText(label->geometry()));
        }
    }

    void textsFit(QWidget* control, const ControlDecl& c) {
        if (auto* button = qobject_cast<QAbstractButton*>(control)) {
            if (button->width() < button->sizeHint().width())
                fault("o botão \"" + button->text() + "\" é mais estreito que o texto");
        } else if (auto* edit = qobject_cast<QLineEdit*>(control); edit && c.kind == ControlKind::ResultBox) {
            const int room = edit->width() - 2 * edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth) - 4;
            if (textWidth(edit, edit->text()) > room) fault("o resultado \"" + edit->text() + "\" não cabe");
        } else if (auto* table = qobject_cast<QTableWidget*>(control)) {
            QHeaderView* header = table->horizontalHeader();
            const int margins = 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
            for (int col = 0; col < table->columnCount(); ++col) {
                const QTableWidgetItem* item = table->horizontalHeaderItem(col);
                if (item && header->sectionSize(col) < textWidth(header, item->text()) + margins)
                    fault(QString("o título \"%1\" de %2 não cabe na coluna").arg(item->text(), nameOf(table)));
            }
        }
        auto* box = qobject_cast<QGroupBox*>(control->parentWidget());
        if (box && box->width() < textWidth(box, box->title()) + 8) fault("o título do quadro \"" + box->title() + "\" é cortado");
    }

    ScreenWindow* w_;
    QString where_;
    QScrollArea* page_ = nullptr;
    QStringList faults_;
};

// The module's windows as the program shows them: made from the declaration,
// filled from the state, given the room the screen has, centred.
class ModuleWindows {
public:
    explicit ModuleWindows(const Module& module) : module_(module) {}
    void show(const FormState& state) {
        for (const ScreenDecl& screen : module_.screens()) {
            auto& w = windows_[screen.name];
            const bool fresh = !w;
            if (fresh) w = std::make_unique<ScreenWindow>(screen);
            w->loadFrom(state);
            for (const auto& picture : w->pictures())
                w->setDrawing(picture, module_.drawing(screen.name + "." + picture, state));
            for (const auto& chart : w->charts()) w->setChart(chart, module_.chart(screen.name + "." + chart, state));
            if (fresh) {
                w->fitToScreen();
                centreOnScreen(w.get());
                w->show();
            }
        }
        settle();
    }
    QStringList check(const QString& when) {
        QStringList faults;
        for (auto& [name, w] : windows_) faults << WindowCheck(w.get(), when).run();
        return faults;
    }

private:
    const Module& module_;
    std::map<std::string, std::unique_ptr<ScreenWindow>> windows_;
};

struct Example {
    QString file;
    nlohmann::json body;
};

std::map<std::string, std::vector<Example>> examplesByModule() {
    std::map<std::string, std::vector<Example>> out;
    const QDir folder(MORVE_EXAMPLES);
    for (const QString& name : folder.entryList({"*.json"}, QDir::Files)) {
        std::ifstream in(folder.filePath(name).toStdString());
        std::stringstream text;
        text << in.rdbuf();
        nlohmann::json body = parseCase(text.str());
        resolveCaseProject(body, folder.filePath(name).toStdString());
        out[body.at("module").get<std::string>()].push_back({name, body});
    }
    return out;
}

}  // namespace

class LayoutTest : public QObject {
    Q_OBJECT

    static inline QtMessageHandler testLog = nullptr;

private slots:
    void initTestCase() {
        // The offscreen surface cannot pass size hints to a window manager and says
        // so for every window, which tells nothing about the windows.
        testLog = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& where, const QString& text) {
            if (!text.contains("propagateSizeHints")) testLog(type, where, text);
        });
    }
    void everyModuleWindowFitsAfterLoadAndAfterEachExample() {
        const QRect screen = QGuiApplication::primaryScreen()->geometry();
        qInfo("tela %dx%d", screen.width(), screen.height());
        const auto examples = examplesByModule();
        QVERIFY(!examples.empty());
        QStringList faults;
        int windows = 0;
        for (const std::string& key : ModuleRegistry::keys()) {
            const Module& module = *ModuleRegistry::find(key);
            // Windows first made after Load and kept while results come in, as a
            // module's main screen is; and made afresh for the results, as a result
            // screen first shown after "CALCULAR" is.
            ModuleWindows kept(module);
            kept.show(ModuleSession(module, StartDefaults()).state());
            faults << kept.check("após Load");
            windows += static_cast<int>(module.screens().size());
            auto found = examples.find(key);
            if (found == examples.end()) continue;
            for (const Example& e : found->second) {
                CaseRun run = runCase(e.body);
                kept.show(run.session->state());
                faults << kept.check("após " + e.file);
                ModuleWindows fresh(module);
                fresh.show(run.session->state());
                faults << fresh.check("novas após " + e.file);
            }
        }
        qInfo("%d janelas de %zu módulos", windows, ModuleRegistry::keys().size());
        faults.removeDuplicates();
        QVERIFY2(faults.isEmpty(), qPrintable("\n" + faults.join('\n')));
    }
};

QTEST_MAIN(LayoutTest)
#include "layout_test.moc"
