// Draws an icon's SVG at one size: fabrique_icones SVG PNG PIXELS.
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

int main(int nombre, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(nombre, arguments);
    const QStringList mots = QGuiApplication::arguments();
    if (mots.size() != 4) return 2;
    const int cote = mots[3].toInt();
    QSvgRenderer dessin(mots[1]);
    if (!dessin.isValid() || cote <= 0 || !QDir().mkpath(QFileInfo(mots[2]).path())) return 1;
    QImage image(cote, cote, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter peintre(&image);
    peintre.setRenderHint(QPainter::Antialiasing);
    dessin.render(&peintre);
    peintre.end();
    return image.save(mots[2]) ? 0 : 1;
}
