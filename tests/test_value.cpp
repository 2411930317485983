#include "common.h"
#include "value/tree.h"
#include "value/valueobservingptr.h"

#include <QtTest>
#include <limits>

using namespace TKE;

namespace
{

ValueDescriptor Ranged(ValueKind kind, double minimum, double maximum)
{
    ValueDescriptor descriptor;
    descriptor.kind = kind;
    descriptor.minimum = minimum;
    descriptor.maximum = maximum;
    descriptor.defaultText = QStringLiteral("0");
    return descriptor;
}

ValueDescriptor Modes(bool multiple)
{
    ValueDescriptor descriptor;
    descriptor.kind = ValueKind::Selection;
    descriptor.multiple = multiple;
    descriptor.items = {{3, QStringLiteral("AM")}, {1, QStringLiteral("FM")}, {7, QStringLiteral("Morse")}};
    descriptor.defaultText = QStringLiteral("1");
    return descriptor;
}

const ValueDescriptor level = Ranged(ValueKind::Int, -10, 20);
const ValueDescriptor ratio = Ranged(ValueKind::Double, -1.5, 1.5);
const ValueDescriptor band = Ranged(ValueKind::Frequency, 10'000, 3'000'000'000.0);
const ValueDescriptor levels = Ranged(ValueKind::DoubleList, 0, 10);
const ValueDescriptor mode = Modes(false);
const ValueDescriptor modes = Modes(true);

} // namespace

Q_DECLARE_METATYPE(TKE::ValueKind)
Q_DECLARE_METATYPE(TKE::ValueDescriptor)

class test_value : public QObject
{
    Q_OBJECT

    Tree m_tree;
    ValueBase* Make(const ValueDescriptor& descriptor) { return m_tree.CreateValue(u"/Node/VALUE", descriptor); }

private slots:
    void cleanup()
    {
        m_tree.SetJournal({});
        m_tree.Clear();
        QLocale::setDefault(QLocale::c());
    }

    void TextIsTakenExactlyOrRefused_data()
    {
        const Table<ValueKind, QStringList, QStringList> table("kind", "taken", "refused");
        const auto row = [&](ValueKind kind, const char* name, const QStringList& taken, const QStringList& refused)
        { table(name, kind, taken, refused); };
        row(ValueKind::Bool, "bool", {"true", "false"}, {"", "True", "1", "yes", "true "});
        row(ValueKind::Int, "int", {"0", "-7", "2147483647", "-2147483648"},
            {"", " 7", "7 ", "+7", "7.0", "1,000", "2147483648", "0x10", "1e3", "٧"});
        row(ValueKind::Double, "double", {"0", "-0.5", "0.1", "1e+300", "5e-324", "123456.789"},
            {"", "0,5", "1e400", "inf", "nan", "1.2.3", "1.5x"});
        row(ValueKind::Frequency, "frequency", {"9007199254740993", "9223372036854775807", "433920000"},
            {"433.92", "433920000 Hz", "9223372036854775808"});
        row(ValueKind::Text, "text", {"", " blanks stay ", "µV Ω 日本 😀", "a\nb", "<&>\""}, {});
        // The hour that summer time skips in Europe and the day that Berlin's clocks were set are moments like any
        // other.
        row(ValueKind::DateTime, "date and time",
            {"", "2024-02-29T23:59:59", "2024-03-31T02:30:00", "1893-04-01T00:00:00"},
            {"2023-02-29T00:00:00", "2024-02-29 23:59:59", "2024-02-29T24:00:00", "2024-02-29", "x"});
        row(ValueKind::DoubleList, "list", {"", "1", "1.5;-2;3"}, {";", "1;", ";1", "1;;2", "1,2", "1; 2", "1;nan"});
    }
    void TextIsTakenExactlyOrRefused()
    {
        QFETCH(ValueKind, kind);
        QFETCH(QStringList, taken);
        QFETCH(QStringList, refused);
        qputenv("TZ", "Europe/Berlin");
        QLocale::setDefault(QLocale(QLocale::German));
        for (const QString& text : taken + refused)
        {
            const bool fits = taken.contains(text);
            for (const bool stored : {false, true})
            {
                ValueBase* value = Make(ValueDescriptor::Plain(kind));
                const QString expected = fits ? text : value->GetText();
                QString reason;
                const bool done =
                    stored ? value->SetStoredText(text, nullptr, &reason) : value->SetFromText(text, nullptr, &reason);
                QVERIFY2(done == fits && reason.isEmpty() == fits, qPrintable(text));
                QCOMPARE(value->GetText(), expected);
                QCOMPARE(value->GetStoredText(), expected);
                m_tree.Clear();
            }
        }
        qunsetenv("TZ");
    }

    void NumbersOutsideTheRangeAreRefusedWithTheLimit()
    {
        const struct
        {
            const ValueDescriptor& descriptor;
            const char *inside, *outside, *limit;
        } cases[]{{level, "-10", "-11", "-10"},
                  {level, "20", "21", "20"},
                  {ratio, "-1.5", "-1.5000000000000002", "-1.5"},
                  {ratio, "1.5", "1e9", "1.5"},
                  {band, "3000000000", "3000000001", "3000000000"},
                  {levels, "0;10;5", "5;10.5;5", "10"}};
        for (const auto& [descriptor, inside, outside, limit] : cases)
        {
            ValueBase* value = Make(descriptor);
            Hearer hearer;
            value->Attach(&hearer);
            QVERIFY2(value->SetFromText(inside), inside);
            QString reason;
            QVERIFY2(!value->SetFromText(outside, nullptr, &reason) && !value->SetStoredText(outside), outside);
            QVERIFY2(reason.endsWith(limit), qPrintable(reason));
            QCOMPARE(value->GetText(), QString(inside));
            QCOMPARE(int(hearer.codes.size()), 1);
            m_tree.Clear();
        }
    }

    void OnlyValuesOfTheirKindTakeNumbersAndBooleans()
    {
        auto* flag = m_tree.CreateValue<BoolValue>(u"/FLAG");
        auto* text = m_tree.CreateValue<TextValue>(u"/TEXT");
        QVERIFY(flag->SetBool(true) && flag->GetBool());
        QVERIFY(text->SetFromText("true") && !text->SetBool(false) && !text->GetBool());
        QCOMPARE(text->GetText(), "true");
        auto* value = m_tree.CreateValue<DoubleValue>(u"/K");
        for (const double number :
             {std::nan(""), std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()})
            QVERIFY(!value->SetValue(number));
        QCOMPARE(value->GetValue(), 0.0);
    }

    void AWriteIsToldOnceAndNotToTheWriter_data()
    {
        const Table<ValueDescriptor, QString> table("descriptor", "text");
        const auto row = [&](const char* name, ValueDescriptor descriptor, const char* initial, const char* text)
        {
            descriptor.defaultText = initial;
            table(name, descriptor, text);
        };
        row("bool", ValueDescriptor::Plain(ValueKind::Bool), "true", "false");
        row("int", level, "-3", "5");
        row("double", ratio, "1.5", "0.25");
        row("frequency", band, "3000000000", "10000");
        row("text", ValueDescriptor::Plain(ValueKind::Text), "some text", "a");
        row("date and time", ValueDescriptor::Plain(ValueKind::DateTime), "2020-01-02T03:04:05", "2024-05-01T12:00:00");
        row("list", levels, "1;2.5", "");
        row("selection", mode, "1", "3");
        row("multiple selection", modes, "1;3", "3;7");
    }
    void AWriteIsToldOnceAndNotToTheWriter()
    {
        QFETCH(ValueDescriptor, descriptor);
        QFETCH(QString, text);
        ValueBase* value = Make(descriptor);
        QCOMPARE(value->GetTypeCode(), int(descriptor.kind));
        QCOMPARE(value->GetStoredText(), descriptor.defaultText);
        int journalled = 0;
        m_tree.SetJournal([&](const JournalEntry&) { ++journalled; });
        Hearer writer, other;
        value->Attach(&writer);
        value->Attach(&other);
        QVERIFY(value->SetStoredText(text, &writer));
        QVERIFY(value->SetStoredText(text) && value->SetFromText(value->GetText()));
        QCOMPARE(value->GetStoredText(), text);
        QVERIFY(writer.codes.empty() && other.codes == std::vector<int>{ccContent});
        QCOMPARE(journalled, 1);
        QVERIFY(value->SetToDefault(&writer));
        QCOMPARE(value->GetStoredText(), descriptor.defaultText);
        value->SetState(stEnabled);
        value->SetState(stDisabled, &writer);
        value->SetState(stDisabled);
        QVERIFY(writer.codes.empty() && other.codes == (std::vector<int>{ccContent, ccContent, ccState}));
        // State is a matter of display: content is written as ever.
        QVERIFY(value->SetStoredText(text) && writer.codes == std::vector<int>{ccContent});
        m_tree.Clear(); // before its descriptor
    }

    void AMomentIsWhatTheClockShowsWhateverItsTimeZone()
    {
        auto* value = m_tree.CreateValue<DateTimeValue>(u"/K");
        Hearer hearer;
        value->Attach(&hearer);
        QVERIFY(value->SetValue(QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::OffsetFromUTC, 7200)));
        QVERIFY(value->SetValue(QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC)));
        QCOMPARE(value->GetText(), QStringLiteral("2024-05-01T12:00:00"));
        QCOMPARE(int(hearer.codes.size()), 1);
    }

    void AValueThatDiesReportsItsEndWhileItIsWhole()
    {
        static const QString name = QStringLiteral("LOOSE");
        auto value = std::make_unique<ValueSelection>(name, mode);
        QString last;
        Hearer hearer([&last, watched = value.get()]
                      { last = watched->GetPathName() + watched->GetText() + QString::number(watched->GetState()); });
        value->SetStoredText("7");
        value->Attach(&hearer);
        value.reset();
        QCOMPARE(last, QStringLiteral("LOOSEMorse1"));
    }

    void SelectionsGoByNameForPeopleAndByKeyForFiles()
    {
        auto* value = m_tree.CreateValue<ValueSelection>(u"/MODE", mode);
        QCOMPARE(value->GetText(), QStringLiteral("FM"));
        QVERIFY(value->SetFromText(QStringLiteral("Morse")));
        QCOMPARE(value->GetStoredText(), QStringLiteral("7"));
        QCOMPARE(value->GetSelectedItem()->GetName(), QStringLiteral("Morse"));
        QString reason;
        for (const char* name : {"morse", "7", "", "USB"})
            QVERIFY(!value->SetFromText(QString::fromUtf8(name), nullptr, &reason));
        QVERIFY(reason.contains(QStringLiteral("USB")));
        QVERIFY(!value->SelectKey(2, nullptr, &reason));
        QVERIFY(!value->SetStoredText(QStringLiteral("Morse"), nullptr, &reason));
        QCOMPARE(value->GetCurrentKey(), 7);
    }

    void AnUnknownKeyOfAFileIsKept()
    {
        auto* value = m_tree.CreateValue<ValueSelection>(u"/MODE", mode);
        QVERIFY(value->SetStoredText(QStringLiteral("42")));
        QCOMPARE(value->GetCurrentKey(), 42);
        QVERIFY(!value->GetSelectedItem());
        QCOMPARE(value->GetText(), QStringLiteral("42"));
        QCOMPARE(value->GetStoredText(), QStringLiteral("42"));

        auto* several = m_tree.CreateValue<ValueSelection>(u"/MODES", modes);
        QVERIFY(several->SetStoredText(QStringLiteral("42;3")));
        QVERIFY(several->SetKeys({42, 1}));
        QVERIFY(!several->SetKeys({43}));
        QCOMPARE(several->GetStoredText(), QStringLiteral("1;42"));
    }

    void MultipleSelectionsAreSets()
    {
        auto* value = m_tree.CreateValue<ValueSelection>(u"/MODES", modes);
        QVERIFY(value->GetKeys() == std::vector<int>{1});
        QVERIFY(value->SetFromText(QStringLiteral("7;3;7")));
        QVERIFY(value->GetKeys() == (std::vector<int>{3, 7}));
        QVERIFY(value->SetKeys({}));
        QCOMPARE(value->GetText(), QString());
        for (const char* text : {"3;x", ";", "3;;7", "AM", "3;9"})
            QVERIFY2(!value->SetFromText(QString::fromUtf8(text)), text);
        QVERIFY(value->GetKeys().empty());
    }

    void OwnItemsReplaceThoseOfTheDescriptorForThisValueOnly()
    {
        auto* value = m_tree.CreateValue<ValueSelection>(u"/A", mode);
        auto* other = m_tree.CreateValue<ValueSelection>(u"/B", mode);
        Hearer hearer;
        value->Attach(&hearer);
        value->SetItems(mode.items);
        QVERIFY(hearer.codes.empty());
        value->SetItems({{9, QStringLiteral("PSK")}});
        QVERIFY(hearer.codes == std::vector<int>{ccItems});
        QCOMPARE(value->GetCurrentKey(), 1);
        QVERIFY(!value->GetSelectedItem() && !value->SelectKey(3));
        QVERIFY(value->SelectKey(9) && other->SelectKey(3));
    }

    void TheJournalSeesEveryChangeWithItsDepth()
    {
        auto* mainValue = m_tree.CreateValue<IntValue>(u"/N/MAIN", level);
        auto* follower = m_tree.CreateValue<ValueSelection>(u"/N/FOLLOWER", mode);
        Hearer hearer;
        hearer.act = [&] { follower->SelectKey(7); };
        mainValue->Attach(&hearer);
        QStringList seen;
        m_tree.SetJournal(
            [&](const JournalEntry& entry)
            {
                // It comes after the change and before anybody hears of it.
                if (&entry.value == mainValue)
                    QVERIFY(mainValue->GetStoredText() == entry.after && follower->GetCurrentKey() == 1);
                seen += QStringLiteral("%1 %2>%3 %4")
                            .arg(entry.value.GetPathName(), entry.before, entry.after)
                            .arg(entry.depth);
            });
        QVERIFY(mainValue->SetValue(5));
        QVERIFY(!mainValue->SetValue(500));
        follower->SetState(stDisabled);
        QVERIFY(follower->SelectKey(3));
        const QStringList expected{QStringLiteral("/N/MAIN 0>5 0"), QStringLiteral("/N/FOLLOWER 1>7 1"),
                                   QStringLiteral("/N/FOLLOWER 7>3 0")};
        QCOMPARE(seen, expected);

        QVERIFY(m_tree.SetJournal({}));
        QVERIFY(mainValue->SetValue(6));
        QCOMPARE(seen, expected);
    }

    void APointerPassesChangesOnAndEmptiesItselfBeforeItTellsTheEnd()
    {
        std::vector<std::pair<int, bool>> told; // whether it still points there
        Hearer holder;
        ValueObservingPtr<ValueBase> pointer{&holder};
        holder.act = [&] { told.emplace_back(holder.codes.back(), bool(pointer)); };
        ValueBase* first = m_tree.CreateValue(u"/FIRST", level);
        ValueBase* second = m_tree.CreateValue(u"/SECOND", level);
        pointer = first;
        QVERIFY(pointer.Get() == first);
        pointer->SetFromText(QStringLiteral("1"));
        first->SetState(stDisabled);
        pointer = second;
        QVERIFY(!first->IsObserved());
        pointer = second;
        second->SetFromText(QStringLiteral("1"));
        m_tree.RemoveValue(u"/SECOND");
        QVERIFY(!pointer);
        QVERIFY(told == (std::vector<std::pair<int, bool>>{
                            {ccContent, true}, {ccState, true}, {ccContent, true}, {ccState, false}}));

        // Withdrawn, not deleted: the same.
        pointer = first;
        first->SetState(stReleased);
        QVERIFY(!pointer && !first->IsObserved());
        // It would not tell its end a second time.
        pointer = first;
        QVERIFY(!pointer && !first->IsObserved());

        first->SetState(stEnabled);
        pointer = first;
        QVERIFY(pointer.Get() == first);
        pointer.Reset();
        QVERIFY(!pointer && !first->IsObserved());
    }

    void AnEndIsToldAgainWhenItComesBeforeAllHaveHeardThatTheValueIsWithdrawn()
    {
        ValueBase* value = m_tree.CreateValue(u"/K", level);
        Hearer remover([&] { m_tree.RemoveValue(u"/K"); });
        value->Attach(&remover);
        ValueObservingPtr<ValueBase> later;
        later = value;
        value->SetState(stReleased);
        QVERIFY(!m_tree.FindValue(u"/K"));
        QVERIFY(!later);
    }

    void AValueThatGoesStaysReleasedAndTellsItOnce()
    {
        ValueBase* value = m_tree.CreateValue(u"/K", level);
        Hearer reviver(
            [&]
            {
                value->SetState(stEnabled);
                QCOMPARE(value->GetState(), stReleased);
            });
        value->Attach(&reviver);
        m_tree.RemoveValue(u"/K");
        QCOMPARE(reviver.codes, std::vector<int>{ccState});
    }

    void APointerMayDieInTheUpdateOfItsHolder()
    {
        for (const bool valueDies : {false, true})
        {
            ValueBase* value = Make(level);
            Hearer holder, next;
            auto pointer = std::make_unique<ValueObservingPtr<ValueBase>>(&holder);
            holder.act = [&] { pointer.reset(); };
            *pointer = value;
            value->Attach(&next);
            valueDies ? m_tree.Clear() : value->SetState(stDisabled);
            QVERIFY(!pointer);
            QCOMPARE(int(next.codes.size()), 1);
            m_tree.Clear();
        }
    }
};

QTEST_GUILESS_MAIN(test_value)
#include "test_value.moc"
