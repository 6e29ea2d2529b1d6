"""SpreadsheetML 2003 files."""
import os
import re
from xml.sax.saxutils import escape

from hurtful_sites import HEADER, sites, table

SPACE = "urn:schemas-microsoft-com:office:spreadsheet"
START = '<?xml version="1.0"?>\n<?mso-application progid="Excel.Sheet"?>\n'


def cell(value, attributes=""):
    if value is None:
        return "<Cell%s/>" % attributes
    kind = "String" if isinstance(value, str) else "Number"
    return '<Cell%s><Data ss:Type="%s">%s</Data></Cell>' % (attributes, kind, escape(str(value)))


def row(values, attributes=""):
    return "<Row%s>%s</Row>\n" % (attributes, "".join(map(cell, values)))


def rows(lines):
    return "".join(map(row, lines))


def book(body, start=START, table_attributes=""):
    return (
        '%s<Workbook xmlns="%s" xmlns:ss="%s"><Styles><Style ss:ID="s1"/></Styles>'
        '<Worksheet ss:Name="Sites"><Table%s>%s</Table></Worksheet></Workbook>'
        % (start, SPACE, SPACE, table_attributes, body)
    )


def files(m):
    empty = '<Row ss:StyleID="s1"><Cell ss:StyleID="s1"/></Row>\n' * 200000
    last = '<Row ss:Index="1048576" ss:StyleID="s1"><Cell ss:Index="16384" ss:StyleID="s1"/></Row>'
    yield "million_styled_rows.xml", book(rows(table()) + empty + last)
    m.open("million_styled_rows.xml", "200,000 styled rows without data, and one at the last row")

    yield "index_gaps.xml", book(
        row(["Sites, 2024"], ' ss:Index="3"')
        + row(HEADER, ' ss:Index="6"')
        + '<Row ss:Span="2"/>'
        + "".join(
            '<Row>%s%s</Row>'
            % (cell(r[0]), "".join(cell(v, ' ss:Index="%d"' % i) for i, v in enumerate(r[1:], 2)))
            for r in sites()
        )
    )
    m.open(
        "index_gaps.xml",
        "ss:Index on rows and cells; ss:Span skips three rows below the header, "
        "so S0001 is row 10",
    )
    merged = "".join(
        "<Row>%s%s</Row>" % (cell(r[0], ' ss:MergeAcross="1"'), "".join(map(cell, r[1:])))
        for r in [["Site ID"] + HEADER[1:]] + sites()
    )
    yield "merged_ids.xml", book(merged)
    m.open("merged_ids.xml", "ids span A:B; B has neither header nor data")

    yield "prefixed.xml", re.sub(r"<(/?)(?=[A-Z])", r"<\1ss:", book(rows(table()))).replace(
        ' xmlns="%s"' % SPACE, ""
    )
    m.open("prefixed.xml", "every element has a prefix, there is no default namespace")
    yield "no_declaration.xml", book(rows(table()), start="\n")
    m.open("no_declaration.xml", "no XML declaration, no processing instruction")
    yield "size_claims.xml", book(
        rows(table()),
        table_attributes=' ss:ExpandedColumnCount="2147483647" ' 'ss:ExpandedRowCount="4294967295"',
    )
    m.open("size_claims.xml", "ExpandedRowCount and ExpandedColumnCount lie")

    rich = book(rows(table()))
    rich = re.sub(
        r'<Data ss:Type="String">S(\d+)</Data>',
        r'<ss:Data ss:Type="String" xmlns="http://www.w3.org/TR/REC-html40"><B>S</B><Font>'
        r'<![CDATA[\1]]></Font></ss:Data><Comment><ss:Data>not the id</ss:Data></Comment>',
        rich,
    )
    yield "rich_comments.xml", rich
    m.open("rich_comments.xml", "ids in HTML runs and CDATA; a comment with Data in each cell")

    for name, encoding in (("utf16.xml", "utf-16"), ("windows1252.xml", "windows-1252")):
        yield name, book(rows(table()), '<?xml version="1.0" encoding="%s"?>' % encoding).encode(
            encoding
        )
        m.open(name, "degree sign in " + encoding)
    yield "bom_utf8.xml", b"\xef\xbb\xbf" + book(rows(table())).encode()
    m.open("bom_utf8.xml", "byte order mark before the declaration")

    dates = [row(HEADER + ["On air", "Active"])]
    for r in sites():
        dates.append(
            row(r).replace(
                "</Row>",
                '<Cell><Data ss:Type="DateTime">2020-02-29T00:00:00.000</Data>'
                '</Cell><Cell><Data ss:Type="Boolean">1</Data></Cell></Row>',
            )
        )
    dates = "".join(dates).replace('<Data ss:Type="Number">2.03<', '<Data ss:Type="Error">#DIV/0!<')
    yield "dates_errors.xml", book(dates)
    m.open(
        "dates_errors.xml", "every date is 2020-02-29; #DIV/0! in the longitude of S0003", columns=8
    )

    laughs = "".join(
        '<!ENTITY e%d "%s">' % (i, ("&e%d;" % (i - 1)) * 10 if i else "ha") for i in range(10)
    )
    yield "laughs.xml", book(
        rows(table()).replace("S0001", "&e9;"),
        '<?xml version="1.0"?><!DOCTYPE Workbook [%s]>' % laughs,
    )
    m.refused("laughs.xml", "doctype", "entities that unfold to ten thousand million letters")
    yield "doctype.xml", book(
        rows(table()), '<?xml version="1.0"?>\n<!-- sites -->\n<!DOCTYPE Workbook>'
    )
    m.refused("doctype.xml", "doctype", "a harmless one behind a comment")
    yield "other.xml", '<?xml version="1.0"?><sites><site id="S0001" x="2.01" y="48.01"/></sites>'
    m.refused("other.xml", "not-supported-format", "a table in XML, not a spreadsheet")
    yield "truncated.xml", book(rows(table()))[:4000]
    m.refused("truncated.xml", "malformed", "cut in the middle of a row")
    yield "unnamed.xml", book(rows(table())).replace("urn:schemas-microsoft-com", "urn:example")
    m.refused(
        "unnamed.xml", "not-supported-format", "the right element names in a foreign namespace"
    )


def write(folder, m):
    for name, data in files(m):
        with open(os.path.join(folder, name), "wb") as out:
            out.write(data.encode() if isinstance(data, str) else data)
