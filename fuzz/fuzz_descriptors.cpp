// A descriptor file of any bytes: reading never crashes, and what it gives can be used.

#include "fuzz.h"
#include "jobmodel/jobmodelreader.h"
#include "jobmodel/nodetemplate.h"
#include "value/tree.h"

using namespace TKE;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Fuzz::Input buffer(data, size);
    JobModel model;
    JobModelReader(model, QStringLiteral("fuzz")).ReadInto(buffer);
    for (const auto& group : model.GetGroups())
    {
        NodeSpec spec;
        spec.groups = {group->GetName()};
        spec.count = 3;
        spec.band = group->GetBand();
        const NodeTemplate values(model, spec);
        Tree tree;
        for (const NodeTemplate::Entry& entry : values.GetEntries())
            tree.CreateValue(QStringLiteral("/A/") + *entry.name, *entry.descriptor);
    }
    return 0;
}
