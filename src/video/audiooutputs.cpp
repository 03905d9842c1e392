#include "audiooutputs.h"

#include "applog.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QMediaDevices>
#include <QMediaPlayer>

namespace AudioOutputs {

namespace {

bool attachWithoutDevice = false;

} // namespace

QAudioOutput *attach(QMediaPlayer *player)
{
    if (QMediaDevices::audioOutputs().isEmpty() && !attachWithoutDevice) {
        static const bool told = [] {
            AppLog::print(QStringLiteral("No audio output device: videos and music play without sound"));
            return true;
        }();
        (void)told;
        return nullptr;
    }
    auto *output = new QAudioOutput(player);
    player->setAudioOutput(output);
    return output;
}

void setAttachWithoutDevice(bool attach)
{
    attachWithoutDevice = attach;
}

} // namespace AudioOutputs
