// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt_sound_player.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace tavi::ui {

QtSoundPlayer::QtSoundPlayer(const std::filesystem::path& folder)
    : owner_(std::make_unique<QObject>()) {
    std::array<std::filesystem::path, kSoundFiles.size()> files;
    bool anyFile = false;
    for (std::size_t id = 0; id < kSoundFiles.size(); ++id) {
        std::error_code ec;
        const std::filesystem::path file = folder / kSoundFiles[id];
        if (std::filesystem::is_regular_file(file, ec)) files[id] = file;
        anyFile = anyFile || !files[id].empty();
    }
    // Without a file there is nothing to ask the audio system for, and without
    // a device the effects would only complain.
    available_ = anyFile && !QMediaDevices::audioOutputs().isEmpty();
    if (!available_) return;
    for (std::size_t id = 0; id < files.size(); ++id) {
        if (files[id].empty()) continue;
        auto* effect = new QSoundEffect(owner_.get());
        effect->setSource(QUrl::fromLocalFile(QString::fromStdString(files[id].string())));
        effects_[id] = effect;
    }
}

QtSoundPlayer::~QtSoundPlayer() = default;

void QtSoundPlayer::Play(int id) {
    if (!available_ || id < 0 || id >= int(effects_.size()) || !effects_[id]) return;
    effects_[id]->play();
}

}  // namespace tavi::ui
