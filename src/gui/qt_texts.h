#pragma once
// Qt's own texts (the buttons of its dialogs, the context menu of a box, the file
// and print dialogs) in Brazilian Portuguese, as the rest of the program speaks.
class QCoreApplication;

namespace morve {

// Loads Qt's pt_BR translations from Qt's own folder; false when they are not
// installed, and Qt then speaks English (the message boxes set their buttons
// themselves and read Portuguese in any case).
bool installQtTranslations(QCoreApplication& app);

}  // namespace morve
