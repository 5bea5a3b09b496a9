#pragma once
// "Arquivos recentes" of the main menu: the last project files opened or saved,
// newest first, kept between runs in the user's settings. It is the only thing the
// program keeps between runs besides the files the user saves.
#include <QString>
#include <QStringList>

#include <functional>

class QMenu;

namespace morve {

class MorveApp;

constexpr int kRecentFiles = 8;

QStringList recentFiles();
// The file goes to the top of the list (once), and the list keeps its newest eight.
void noteRecentFile(const QString& path);
void dropRecentFile(const QString& path);

// The menu lists the files anew each time it opens, with the access keys 1 to 8.
void fillRecentMenu(QMenu* menu, const std::function<void(const QString&)>& open);

// A file picked from the list: its module opens with its data; a file that is gone
// is dropped from the list with a message.
void openRecentFile(MorveApp& app, const QString& path);

}  // namespace morve
