#pragma once

class QAudioOutput;
class QMediaPlayer;

/**
 * The sound of the players: an output is attached only when the machine has an output device, since a
 * player without one plays its picture silently while an output without a device may fail anywhere.
 */
namespace AudioOutputs {

/** Gives `player` an output on the default device and returns it; null when there is no device. */
QAudioOutput *attach(QMediaPlayer *player);

/**
 * For tests on machines without a sound device: attach an output anyway, so that a sound alone still
 * plays in time (the backend's sink keeps the clock without a device).
 */
void setAttachWithoutDevice(bool attach);

} // namespace AudioOutputs
