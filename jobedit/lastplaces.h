#pragma once

#include "place.h"

namespace JOBEDIT
{

/// Where the user was in each of the recent files, kept in the settings of the application.
class LastPlaces
{
public:
    static void Keep(const QString& fileName, const Place& place);
    /// An empty place when the file is not known.
    static Place Find(const QString& fileName);
};

} // namespace JOBEDIT
