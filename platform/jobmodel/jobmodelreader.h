#pragma once

#include "jobmodel/jobmodel.h"
#include "jobmodel/xmlreader.h"

namespace TKE
{

/// Reads one descriptor file into a model. What is faulty is reported and left out; the rest is used.
class JobModelReader final : public XmlReader
{
    Q_DECLARE_TR_FUNCTIONS(TKE::JobModelReader)

public:
    JobModelReader(JobModel& model, const QString& shownName);

    /// Reads the device and adds what was found wrong to the errors of the model.
    void ReadInto(QIODevice& device);

private:
    using Parameter = JOBXMLGENERATOR::Parameter;
    struct PendingRule
    {
        ParameterRule rule;
        qint64 offset;
    };

    void OnStart(std::string_view name, Attributes attributes) override;
    void OnEnd(std::string_view name) override;
    void OnFinish() override;

    void StartGroup(Attributes attributes);
    void StartParameter(Attributes attributes);
    void StartRule(Attributes attributes);
    void StartItem(Attributes attributes);
    void EndParameter();
    void AddRules();

    bool ReadKind(Attributes attributes, Parameter& parameter);
    bool ReadNumbers(Attributes attributes, Parameter& parameter);
    bool ReadRow(Attributes attributes, Parameter& parameter);
    bool ReadPlace(Attributes attributes, Parameter& parameter);
    bool ReadDefault(Attributes attributes, Parameter& parameter);
    template <class T, class Target> bool ReadNumber(Attributes attributes, const char* name, Target& number);
    bool Refuse(const char* attribute, const char* text);
    QString ItemPath() const;

    JobModel& m_model;
    ParameterGroup* m_group = nullptr;      // the group being read
    std::unique_ptr<Parameter> m_parameter; // the parameter being read
    std::vector<PendingRule> m_rules;       // of the group: the parameters that they name may follow
    int m_depth = 0;
    int m_skip = 0; // how deep in something that is left out
};

} // namespace TKE
