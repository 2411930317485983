#include "lastplaces.h"

#include "recentfiles.h"

#include <QFileInfo>
#include <QSettings>

namespace JOBEDIT
{

namespace
{

const char* const placesKey = "places";

} // namespace

void LastPlaces::Keep(const QString& fileName, const Place& place)
{
    const QVariantMap before = QSettings().value(placesKey).toMap();
    QVariantMap places;
    for (const QString& recent : RecentFiles::GetFiles())
        if (before.contains(recent))
            places.insert(recent, before.value(recent));
    places.insert(QFileInfo(fileName).absoluteFilePath(),
                  QStringList{place.node, QString::number(int(place.form)), QString::number(place.tab)});
    QSettings().setValue(placesKey, places);
}

Place LastPlaces::Find(const QString& fileName)
{
    const QVariantMap places = QSettings().value(placesKey).toMap();
    const QStringList place = places.value(QFileInfo(fileName).absoluteFilePath()).toStringList();
    return {place.value(0), place.value(1).toInt() == int(Form::StandAlone) ? Form::StandAlone : Form::Job,
            place.value(2).toInt()};
}

} // namespace JOBEDIT
