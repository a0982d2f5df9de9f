// An editor writes the same attributes with every keystroke; whoever else writes is heeded.

#include "framework/documents.h"
#include "platform/failure.h"
#include "support/test_documents.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

using platform::IXMLDOMDocument;
using platform::IXMLDOMNode;

class ParameterWriterTest : public testing::Test {
protected:
    void write(const std::string& value, const std::string& unit = "bar")
    {
        writer.writeValue(parameter, value);
        writer.writeUnit(parameter, unit);
        writer.markOutOfStep(parameter);
    }
    std::string read(const char* name) { return documents::attributeText(parameter, name); }

    IXMLDOMDocument document = datafile(
        R"(<data:parameter name="travel" value="1" unit="bar" synchronised="1"/>
           <data:parameter name="other" value="1" unit="psi" synchronised="1"/>)");
    IXMLDOMNode                parameter = documents::findParameter(document, "travel");
    documents::ParameterWriter writer;
};

TEST_F(ParameterWriterTest, WritesValueUnitAndMark)
{
    write("2");
    write("3", "kPa");
    EXPECT_EQ(read("value"), "3");
    EXPECT_EQ(read("unit"), "kPa");
    EXPECT_EQ(read("synchronised"), "0");
}

TEST_F(ParameterWriterTest, AMarkThatTheHostSetsIsTakenBackByTheNextWrite)
{
    write("2");
    documents::writeAttribute(parameter, "synchronised", "1");
    write("2");
    EXPECT_EQ(read("synchronised"), "0");
}

TEST_F(ParameterWriterTest, AUnitThatTheHostWritesIsWrittenOver)
{
    write("2");
    parameter.get_attributes().getNamedItem("unit").put_text("psi");
    write("2");
    EXPECT_EQ(read("unit"), "bar");
    parameter.get_attributes().getNamedItem("unit").get_firstChild().put_nodeValue("psi");
    write("2");
    EXPECT_EQ(read("unit"), "bar");
}

TEST_F(ParameterWriterTest, AnAttributeThatWasRemovedComesBack)
{
    write("2");
    for (const char* name : {"value", "unit", "synchronised"}) {
        const auto gone = parameter.get_attributes().removeNamedItem(name);
        write("4");
        EXPECT_EQ(read("value"), "4") << name;
        EXPECT_EQ(read("unit"), "bar") << name;
        EXPECT_EQ(read("synchronised"), "0") << name;
    }
}

TEST_F(ParameterWriterTest, AnAttributeThatWasReplacedIsTheOneThatIsWritten)
{
    write("2");
    const auto fresh = document.createAttribute("synchronised");
    fresh.put_value("2");
    (void)parameter.get_attributes().setNamedItem(fresh);
    write("2");
    EXPECT_EQ(read("synchronised"), "0");
}

TEST_F(ParameterWriterTest, AnotherParameterIsWrittenFromTheStart)
{
    write("2");
    parameter = documents::findParameter(document, "other");
    write("2");
    EXPECT_EQ(read("unit"), "bar");
    EXPECT_EQ(read("synchronised"), "0");
}

TEST_F(ParameterWriterTest, NoParameterIsAFailure)
{
    EXPECT_THROW(writer.writeValue({}, "1"), platform::Failure);
    EXPECT_THROW(writer.markOutOfStep({}), platform::Failure);
}

} // namespace
} // namespace quill::test
