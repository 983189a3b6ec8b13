#pragma once

#include <QIconEngine>
#include <QString>

namespace lumenkit::lumenform {

/// Draws an embedded icon in the colours of the application's palette. An empty name is the icon of
/// the program, which keeps its own colours.
class SvgEngine final : public QIconEngine {
 public:
    static constexpr int smallSide = 16;  ///< of the two drawings of each icon, in pixels
    static constexpr int largeSide = 22;

    explicit SvgEngine(QString name) : name_(std::move(name)) {}

    static QString PathOf(const QString& name, int side);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override;
    QIconEngine* clone() const override { return new SvgEngine(name_); }
    bool isNull() override { return false; }

 private:
    QByteArray Drawing(int side, QIcon::Mode mode) const;

    QString name_;
};

}  // namespace lumenkit::lumenform
