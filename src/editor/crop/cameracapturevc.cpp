#include "cameracapturevc.h"

#include "navigationcontroller.h"

#include <QCamera>
#include <QImageCapture>
#include <QMediaDevices>
#include <QVideoFrame>

CameraCaptureVC::CameraCaptureVC(QObject *parent)
    : ViewController(parent)
{
    setTitle(QStringLiteral("Camera"));
}

bool CameraCaptureVC::isReadyForCapture() const
{
    return m_capture && m_capture->isReadyForCapture();
}

void CameraCaptureVC::viewDidLoad()
{
    const QCameraDevice device = QMediaDevices::defaultVideoInput();
    if (device.isNull()) {
        setError(QStringLiteral("No camera on this device"));
        return;
    }
    m_camera = new QCamera(device, this);
    m_capture = new QImageCapture(this);
    m_session.setCamera(m_camera);
    m_session.setImageCapture(m_capture);
    connect(
        m_camera, &QCamera::errorOccurred, this, [this](QCamera::Error, const QString &message) { setError(message); });
    connect(m_capture, &QImageCapture::errorOccurred, this,
        [this](int, QImageCapture::Error, const QString &message) { setError(message); });
    connect(m_capture, &QImageCapture::readyForCaptureChanged, this, &CameraCaptureVC::readyForCaptureChanged);
    // The full frame, where some cameras give `imageCaptured` only a smaller preview.
    connect(m_capture, &QImageCapture::imageAvailable, this, [this](int, const QVideoFrame &frame) {
        const QImage picture = frame.toImage();
        if (picture.isNull())
            setError(QStringLiteral("The photograph could not be read."));
        else
            Q_EMIT pictureTaken(picture);
    });
    m_camera->start();
}

void CameraCaptureVC::viewWillDisappear()
{
    if (m_camera)
        m_camera->stop();
}

void CameraCaptureVC::setVideoOutput(QObject *output)
{
    m_session.setVideoOutput(output);
}

void CameraCaptureVC::takePicture()
{
    if (isReadyForCapture())
        m_capture->capture();
}

void CameraCaptureVC::cancel()
{
    if (NavigationController *stack = navigationController(); stack && stack->topViewController() == this)
        stack->pop();
}

void CameraCaptureVC::setError(const QString &message)
{
    if (message == m_errorString)
        return;
    m_errorString = message;
    Q_EMIT errorChanged();
}
