// A job file of any bytes: loading never crashes; what loads is written back byte for byte, and again after an edit was
// undone.

#include "fuzz.h"
#include "jobmodel/jobmodel.h"
#include "jobmodel/jobreader.h"
#include "jobmodel/jobwriter.h"

using namespace TKE;

namespace
{

QByteArray Written(const Tree& tree, const JobLayout& layout)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    Fuzz::Require(JobWriter(tree, buffer).Write(layout));
    return buffer.data();
}

bool Reads(const QByteArray& text, Tree& tree, JobLayout& layout, const JobModel& model)
{
    Fuzz::Input buffer(text);
    return JobReader(tree, tree, layout, model, QStringLiteral("fuzz"), JobReader::Purpose::Load).Read(buffer);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const auto model = JobModel::Load();
    const QByteArray text(reinterpret_cast<const char*>(data), qsizetype(size));
    {
        Fuzz::Input buffer(text);
        Tree tree;
        JobLayout layout;
        JobReader(tree, tree, layout, *model, QStringLiteral("fuzz"), JobReader::Purpose::Check).Read(buffer);
    }
    Tree tree;
    JobLayout layout;
    if (!Reads(text, tree, layout, *model))
        return 0;
    Fuzz::Require(Written(tree, layout) == text);

    // Every value of every node edited: what is written then must load and hold the same.
    for (JobNode* node : std::as_const(layout.byPath))
    {
        std::vector<ValueBase*> values;
        node->FindValues(tree, values);
        for (ValueBase* value : values)
        {
            if (value && value->GetKind() == ValueKind::Text)
                value->SetStoredText(value->GetText() + QStringLiteral("<&>"));
            else if (value && value->GetKind() == ValueKind::Bool)
                value->SetBool(!value->GetBool());
        }
    }
    const QByteArray edited = Written(tree, layout);
    Tree again;
    JobLayout againLayout;
    Fuzz::Require(Reads(edited, again, againLayout, *model) && Written(again, againLayout) == edited &&
                  again.ValueCount() == tree.ValueCount());
    return 0;
}
