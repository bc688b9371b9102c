#include "game/first_run.h"

#include "library/library_setup.h"

namespace tavi {

bool PrepareLogFiles(const LibraryFolders& folders, Options& options, SettingsStore& store,
                     Notifier& notifier) {
    if (!options.LogfilesMade) {
        if (!MaakSudLog(folders, notifier)) {
            notifier.Message(kInitiationFailedTitle, kInitiationFailedText);
            return false;
        }
        options.LogfilesMade = true;
    }
    SchrijfOptieSudLog(store, options);
    store.Flush();
    return true;
}

}  // namespace tavi
