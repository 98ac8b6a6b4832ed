#include "platform/ui/Picture.h"

#include <QFile>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <cmath>
#include <map>
#include <tuple>
#include <utility>

namespace {

QString ResourceOf(const QString& name) {
    return QStringLiteral(":/pictures/%1.svg").arg(name);
}

// Only the last drawing is kept: it takes more memory than a rendering of it. It often is wanted again at once, by who
// has asked for its size, or makes an icon.
QSvgRenderer& DrawingOf(const QString& name) {
    static QSvgRenderer drawing;
    static QString current;
    if (current != name) {
        drawing.load(ResourceOf(name));
        current = name;
    }
    return drawing;
}

} // namespace

struct Picture::State {
    QString name;
    QString description;
    mutable QSize size;
    const Picture* mask = nullptr;
    // By size in device pixels and screen scale.
    mutable std::map<std::tuple<int, int, qreal>, QPixmap> renderings;

    [[nodiscard]] QImage Render(const QSize& deviceSize) const {
        QImage image(deviceSize, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        DrawingOf(name).render(&painter, QRectF(QPointF(0, 0), QSizeF(deviceSize)));
        return image;
    }
};

namespace {

// A window shows a picture at one or two sizes. One that stretches with the window has a new size with every step of
// the mouse, and the old ones do not come back.
constexpr std::size_t mostRenderings = 8;

void ApplyMask(QImage& image, const QImage& mask) {
    for (int y = 0; y < image.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
        const auto* masks = reinterpret_cast<const QRgb*>(mask.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int opacity = 255 - qGray(masks[x]);
            const QRgb pixel = qUnpremultiply(pixels[x]);
            pixels[x] = qPremultiply(qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), qAlpha(pixel) * opacity / 255));
        }
    }
}

} // namespace

Picture::Picture(std::unique_ptr<State> state) : state_(std::move(state)) {}

Picture::~Picture() = default;

QString Picture::Name() const {
    return state_->name;
}

QSize Picture::Size() const {
    if (!state_->size.isValid()) {
        state_->size = DrawingOf(state_->name).defaultSize();
    }
    return state_->size;
}

QString Picture::Description() const {
    return state_->description;
}

void Picture::SetDescription(const QString& description) {
    state_->description = description;
}

void Picture::SetMask(const Picture& mask) {
    state_->mask = &mask;
    state_->renderings.clear();
}

void Picture::Draw(QPainter& painter, const QRect& rect) const {
    const qreal scale = painter.device()->devicePixelRatioF();
    const QSize deviceSize(static_cast<int>(std::lround(rect.width() * scale)),
                           static_cast<int>(std::lround(rect.height() * scale)));
    if (deviceSize.isEmpty()) {
        return;
    }
    if (state_->renderings.size() > mostRenderings) {
        state_->renderings.clear();
    }
    QPixmap& rendering = state_->renderings[{deviceSize.width(), deviceSize.height(), scale}];
    if (rendering.isNull()) {
        QImage image = state_->Render(deviceSize);
        if (state_->mask != nullptr) {
            ApplyMask(image, state_->mask->state_->Render(deviceSize));
        }
        image.setDevicePixelRatio(scale);
        rendering = QPixmap::fromImage(std::move(image));
    }
    painter.drawPixmap(rect.topLeft(), rendering);
}

Picture* NamedPicture(const QString& name) {
    static std::map<QString, std::unique_ptr<Picture>> pictures;
    const auto found = pictures.find(name);
    if (found != pictures.end()) {
        return found->second.get();
    }
    if (!QFile::exists(ResourceOf(name))) {
        return nullptr;
    }
    auto state = std::make_unique<Picture::State>();
    state->name = name;
    return (pictures[name] = std::unique_ptr<Picture>(new Picture(std::move(state)))).get();
}
