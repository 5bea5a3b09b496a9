#include "gui/main_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QLinearGradient>
#include <QMenuBar>
#include <QPainter>
#include <QVBoxLayout>

#include <map>

#include "app/about.h"
#include "app/module.h"
#include "app/shell_texts.h"
#include "gui/keyboard.h"
#include "gui/recent_files.h"

namespace morve {

namespace {

// The picture of the menu window and its three captions.
class MenuPicture : public QWidget {
public:
    explicit MenuPicture(QWidget* parent) : QWidget(parent) {
        auto* layout = new QVBoxLayout(this);
        layout->addStretch(2);
        auto add = [&](const QString& text, double scale, bool bold, const char* name) {
            auto* label = new QLabel(text, this);
            label->setObjectName(QString::fromUtf8(name));
            QFont f = label->font();
            f.setPointSizeF(f.pointSizeF() * scale);
            f.setBold(bold);
            label->setFont(f);
            label->setAlignment(Qt::AlignCenter);
            label->setWordWrap(true);
            label->setStyleSheet(QStringLiteral("color: white;"));
            layout->addWidget(label);
        };
        add(QStringLiteral("MORVE"), 4.0, true, "Label1");
        add(QString::fromUtf8(kVersionCaption), 1.3, false, "Label2");
        layout->addSpacing(16);
        add(QString::fromUtf8(kAboutPurpose), 1.1, false, "Label3");
        layout->addStretch(3);
        layout->setContentsMargins(60, 20, 60, 20);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QLinearGradient ground(0, 0, 0, height());
        ground.setColorAt(0, QColor(0x1f, 0x3b, 0x63));
        ground.setColorAt(1, QColor(0x6f, 0x8f, 0xb8));
        painter.fillRect(rect(), ground);
        // A beam section with its bars, the program's emblem.
        painter.setRenderHint(QPainter::Antialiasing);
        const double s = std::min(width(), height()) / 12.0;
        const QRectF section(width() - 2.6 * s, height() - 4.2 * s, 1.6 * s, 3.2 * s);
        painter.setPen(QPen(QColor(230, 230, 230), 2));
        painter.setBrush(QColor(255, 255, 255, 40));
        painter.drawRect(section);
        painter.setBrush(QColor(230, 230, 230));
        for (int i = 0; i < 3; ++i) {
            const double x = section.left() + section.width() * (0.2 + 0.3 * i);
            painter.drawEllipse(QPointF(x, section.bottom() - 0.3 * s), 0.12 * s, 0.12 * s);
            painter.drawEllipse(QPointF(x, section.top() + 0.3 * s), 0.09 * s, 0.09 * s);
        }
    }
};

}  // namespace

MainWindow::MainWindow() {
    setObjectName(QStringLiteral("Form0"));
    setWindowTitle(QString::fromUtf8(kWindowTitle));
    setCentralWidget(new MenuPicture(this));
    resize(800, 560);

    // The menus open in the order their first leaf comes in the catalogue.
    std::map<std::string, QMenu*> menus;
    auto menuFor = [&](const std::vector<std::string>& path) -> QMenu* {
        QMenu* parent = nullptr;
        std::string key;
        for (const std::string& name : path) {
            key += "/" + name;
            QMenu*& menu = menus[key];
            if (!menu) {
                const QString caption = QString::fromStdString(ModuleCatalogue::menuCaption(name));
                menu = parent ? parent->addMenu(caption) : menuBar()->addMenu(caption);
                menu->setObjectName(QString::fromStdString(name));
            }
            parent = menu;
        }
        return parent;
    };
    for (const CatalogueRow& row : ModuleCatalogue::rows()) {
        QMenu* menu = menuFor(row.path);
        QAction* leaf = menu->addAction(QString::fromStdString(row.caption));
        leaf->setObjectName(QString::fromStdString(row.command));
        leaf->setData(QString::fromStdString(row.module));
        leaf->setEnabled(ModuleRegistry::find(row.module) != nullptr);
        const std::string module = row.module;
        connect(leaf, &QAction::triggered, this, [this, module] {
            if (onModule) onModule(module);
        });
    }
    QMenu* recent = menuBar()->addMenu(QStringLiteral("Arquivos recentes"));
    recent->setObjectName(QStringLiteral("recentes"));
    fillRecentMenu(recent, [this](const QString& path) {
        if (onRecentFile) onRecentFile(path);
    });
    QMenu* help = menuBar()->addMenu(QString::fromStdString(ModuleCatalogue::menuCaption("ajuda")));
    help->setObjectName(QStringLiteral("ajuda"));
    for (const HelpMenuEntry& entry : ModuleCatalogue::helpMenu()) {
        QAction* a = help->addAction(QString::fromStdString(entry.caption));
        a->setObjectName(QString::fromStdString(entry.command));
        connect(a, &QAction::triggered, this, [this, entry] {
            if (onHelp) onHelp(entry);
        });
    }
    giveAccessKeys(menuBar());
}

QAction* MainWindow::moduleAction(const std::string& module) const {
    for (QAction* a : findChildren<QAction*>())
        if (a->data().toString().toStdString() == module) return a;
    return nullptr;
}

QAction* MainWindow::helpAction(const std::string& command) const {
    return findChild<QAction*>(QString::fromStdString(command));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    // The close of the menu ends the program; it is not refused.
    event->accept();
    if (onClose) onClose();
}

}  // namespace morve
