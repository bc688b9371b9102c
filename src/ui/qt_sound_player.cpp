#include "ui/qt_sound_player.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace tavi::ui {

QtSoundPlayer::QtSoundPlayer(const std::filesystem::path& folder)
    : owner_(std::make_unique<QObject>()) {
    bool anyFile = false;
    for (std::size_t id = 0; id < kSoundFiles.size(); ++id) {
        const std::filesystem::path file = folder / kSoundFiles[id];
        std::error_code ec;
        if (!std::filesystem::is_regular_file(file, ec)) continue;
        anyFile = true;
        auto* effect = new QSoundEffect(owner_.get());
        effect->setSource(QUrl::fromLocalFile(QString::fromStdString(file.string())));
        effects_[id] = effect;
    }
    // Without a file there is nothing to ask the audio system for.
    available_ = anyFile && !QMediaDevices::audioOutputs().isEmpty();
}

QtSoundPlayer::~QtSoundPlayer() = default;

void QtSoundPlayer::Play(int id) {
    if (!available_ || id < 0 || id >= int(effects_.size()) || !effects_[id]) return;
    effects_[id]->play();
}

}  // namespace tavi::ui
