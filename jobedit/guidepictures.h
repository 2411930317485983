#pragma once

#include <QTextStream>
#include <memory>

namespace TKE
{
class JobModel;
}

namespace JOBEDIT
{

/// Pictures of the editor at work on the sample job, for the guide: made by the program itself, so that they show what it
/// shows. Each is named on `out`. False, with the reason on `errors`, when one cannot be made.
bool MakeGuidePictures(std::shared_ptr<const TKE::JobModel> model, const QString& directory, QTextStream& out,
                       QTextStream& errors);

} // namespace JOBEDIT
