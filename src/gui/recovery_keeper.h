#pragma once
// The desktop's side of the recovery file: while a module is open its typed data
// are written on every "CALCULAR" (before the calculation, which is what might
// crash) and, when they changed, at most every 10 s; at the next start a recovery
// file left by a session that did not close is offered back.
#include <QObject>
#include <QTimer>

#include <string>

namespace morve {

class ModuleHost;
class MorveApp;

class RecoveryKeeper : public QObject {
public:
    // A child of the host: it ends with the module.
    explicit RecoveryKeeper(ModuleHost& host);
    // Writes what the windows show now, if it is not what was written last.
    void keep();

    // Waits for the writes under way, before the file is deleted or read.
    static void finish();

    // The period of the check for changes, 10 s; tests shorten it.
    static void setInterval(int ms);

private:
    ModuleHost& host_;
    QTimer timer_;
    std::string written_;
};

// At start: "Recuperar os dados digitados na última sessão?" when a recovery file
// is there. Yes opens its module with its data (true); No deletes it; a damaged
// file is refused with a message and deleted, and the program starts as usual.
bool offerRecovery(MorveApp& app);

}  // namespace morve
