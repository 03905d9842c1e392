#pragma once

#include "viewcontroller.h"

#include <QCameraDevice> // before QMediaCaptureSession, whose header needs it complete
#include <QImage>
#include <QMediaCaptureSession>
#include <QString>

class QCamera;
class QImageCapture;

/**
 * The camera screen of the picture sheet: the camera's picture live, and a shutter. The photograph taken
 * goes to whoever listens to `pictureTaken`.
 */
class CameraCaptureVC : public ViewController
{
    Q_OBJECT
    /** The camera is running and a photograph can be taken now. */
    Q_PROPERTY(bool isReadyForCapture READ isReadyForCapture NOTIFY readyForCaptureChanged)
    /** Why there is no picture; empty while the camera works. */
    Q_PROPERTY(QString errorString READ errorString NOTIFY errorChanged)
public:
    explicit CameraCaptureVC(QObject *parent = nullptr);

    [[nodiscard]] bool isReadyForCapture() const;
    [[nodiscard]] QString errorString() const { return m_errorString; }

    /** Starts the device's default camera. */
    void viewDidLoad() override;
    void viewWillDisappear() override;

    /** The view's video output, which shows the camera's picture. */
    Q_INVOKABLE void setVideoOutput(QObject *output);
    Q_INVOKABLE void takePicture();
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void pictureTaken(const QImage &picture);
    void readyForCaptureChanged();
    void errorChanged();

private:
    void setError(const QString &message);

    QMediaCaptureSession m_session;
    QCamera *m_camera = nullptr;
    QImageCapture *m_capture = nullptr;
    QString m_errorString;
};
