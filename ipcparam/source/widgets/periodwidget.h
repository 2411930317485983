#pragma once

#include "value/tree.h"
#include "valuewidgets/fieldholder.h"
#include "valuewidgets/valuelink.h"

#include <QGridLayout>
#include <QLabel>
#include <QPointer>

namespace TKE
{

/// What VCTimePeriod and VCDatePeriod (each a friend that has the same fields) do alike. How a value is loaded and
/// written is their own.
template <class Widget> class PeriodWidget final
{
public:
    PeriodWidget() = delete;

    static void LayOut(Widget& widget)
    {
        widget.m_startLabel->setObjectName(QStringLiteral("StartLabel"));
        widget.m_startLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        widget.m_startLabel->setBuddy(widget.m_startEdit);
        widget.m_stopLabel->setObjectName(QStringLiteral("StopLabel"));
        widget.m_stopLabel->setBuddy(widget.m_stopEdit);
        auto* grid = new QGridLayout(&widget);
        grid->addWidget(widget.m_startLabel, 0, 0);
        grid->addWidget(widget.m_startEdit, 0, 1);
        grid->addWidget(widget.m_stopLabel, 1, 0);
        grid->addWidget(widget.m_stopEdit, 1, 1);
    }

    static bool Bind(Widget& widget, const QString& startPath, const QString& stopPath)
    {
        Release(widget);
        widget.m_startValue = dynamic_cast<TextValue*>(Tree::Instance()->FindValue(startPath));
        widget.m_stopValue = dynamic_cast<TextValue*>(Tree::Instance()->FindValue(stopPath));
        if (!widget.m_startValue || !widget.m_stopValue)
        {
            Release(widget);
            widget.setEnabled(false);
            return false;
        }
        // Attached before they are loaded, since loading may write and whoever hears of that may remove the other
        // value.
        widget.m_startValue->Attach(&widget);
        widget.m_stopValue->Attach(&widget);
        widget.m_bound = true;
        ValueLink::Enable(widget, !widget.m_locked && widget.m_startValue->GetState() == stEnabled &&
                                      widget.m_stopValue->GetState() == stEnabled);
        const QPointer<QWidget> alive(&widget);
        widget.Load(widget.m_startValue, *widget.m_startEdit);
        if (alive)
            widget.Load(widget.m_stopValue, *widget.m_stopEdit);
        return true;
    }

    static void Update(Widget& widget, const Observable* source, TChangeCode code)
    {
        const bool isStart = source && source == widget.m_startValue;
        const bool isStop = source && source == widget.m_stopValue;
        if (code == ccState)
        {
            if (isStart)
                FollowState(widget, widget.m_startValue);
            if (isStop)
                FollowState(widget, widget.m_stopValue);
        }
        else if (code == ccContent && isStart)
            widget.Load(widget.m_startValue, *widget.m_startEdit);
        else if (code == ccContent && isStop)
            widget.Load(widget.m_stopValue, *widget.m_stopEdit);
    }

    static std::vector<FieldHolder::Field> GetFields(const Widget& widget)
    {
        std::vector<FieldHolder::Field> fields;
        if (widget.m_startValue)
            fields.push_back({widget.m_startEdit, widget.m_startValue});
        if (widget.m_stopValue)
            fields.push_back({widget.m_stopEdit, widget.m_stopValue});
        return fields;
    }

private:
    static void Release(Widget& widget)
    {
        for (TextValue** value : {&widget.m_startValue, &widget.m_stopValue})
        {
            if (*value)
                (*value)->Detach(&widget);
            *value = nullptr;
        }
        widget.m_bound = false;
    }

    static void FollowState(Widget& widget, TextValue*& value)
    {
        switch (value->GetState())
        {
        case stEnabled:
            ValueLink::Enable(widget, !widget.m_locked);
            break;
        case stDisabled:
            widget.setEnabled(false);
            break;
        case stReleased:
            value->Detach(&widget);
            value = nullptr;
            widget.m_bound = widget.m_startValue || widget.m_stopValue;
            break;
        }
    }
};

} // namespace TKE
