"""SpreadsheetML 2003 files."""
import re
from xml.sax.saxutils import escape

from hurtful_sites import HEADER, LAUGHS, sites, table

SPACE = "urn:schemas-microsoft-com:office:spreadsheet"
DECLARED = '<?xml version="1.0"?>\n'
START = DECLARED + '<?mso-application progid="Excel.Sheet"?>\n'


def cell(value, attributes=""):
    kind = "String" if isinstance(value, str) else "Number"
    return '<Cell%s><Data ss:Type="%s">%s</Data></Cell>' % (attributes, kind, escape(str(value)))


def row(values, attributes="", more=""):
    return "<Row%s>%s%s</Row>\n" % (attributes, "".join(map(cell, values)), more)


def book(body, start=START, size=""):
    return ('%s<Workbook xmlns="%s" xmlns:ss="%s"><Styles><Style ss:ID="s1"/></Styles>'
            '<Worksheet ss:Name="Sites"><Table%s>%s</Table></Worksheet></Workbook>'
            % (start, SPACE, SPACE, size, body))


def legal(m):
    rows = "".join(map(row, table()))
    usual = book(rows)
    styled = '<Row ss:StyleID="s1"><Cell ss:StyleID="s1"/></Row>\n' * 200000
    styled += '<Row ss:Index="1048576" ss:StyleID="s1"><Cell ss:Index="16384" ss:StyleID="s1"/></Row>'
    gaps = row(["Sites, 2024"], ' ss:Index="3"') + row(HEADER, ' ss:Index="6"') + '<Row ss:Span="2"/>'
    for r in sites():
        gaps += row(r[:1], more="".join(cell(v, ' ss:Index="%d"' % i) for i, v in enumerate(r[1:], 2)))
    merged = re.sub(r"(<Row>)<Cell>", r'\1<Cell ss:MergeAcross="1">', rows)
    prefixed = re.sub(r"<(/?)(?=[A-Z])", r"<\1ss:", usual).replace(' xmlns="%s"' % SPACE, "")
    sizes = ' ss:ExpandedColumnCount="2147483647" ss:ExpandedRowCount="4294967295"'
    rich = re.sub(
        r'<Data ss:Type="String">S(\d+)</Data>',
        r'<ss:Data ss:Type="String" xmlns="http://www.w3.org/TR/REC-html40"><B>S</B><Font>'
        r'<![CDATA[\1]]></Font></ss:Data><Comment><ss:Data>not the id</ss:Data></Comment>', usual)
    for name, text, note in (
        ("million_styled_rows.xml", book(rows + styled), "200,000 styled rows, and one at the last row"),
        ("index_gaps.xml", book(gaps), "ss:Index on rows and cells; ss:Span skips three rows"),
        ("merged_ids.xml", book(merged), "ids span A:B; B has neither header nor data"),
        ("prefixed.xml", prefixed, "every element has a prefix, there is no default namespace"),
        ("no_declaration.xml", book(rows, "\n"), ""),
        ("size_claims.xml", book(rows, size=sizes), "ExpandedRowCount and ExpandedColumnCount lie"),
        ("rich_comments.xml", rich, "ids in HTML runs and CDATA; a comment with Data in each cell"),
        ("bom_utf8.xml", "\ufeff" + usual, "byte order mark before the declaration"),
    ):
        m.open(name, text, note)
    for name, encoding in (("utf16.xml", "utf-16"), ("windows1252.xml", "windows-1252")):
        start = '<?xml version="1.0" encoding="%s"?>' % encoding
        m.open(name, book(rows, start).encode(encoding), "degree sign in " + encoding)

    more = ('<Cell><Data ss:Type="DateTime">2020-02-29T00:00:00.000</Data></Cell>'
            '<Cell><Data ss:Type="Boolean">1</Data></Cell>')
    dates = row(HEADER + ["On air", "Active"]) + "".join(row(r, more=more) for r in sites())
    dates = dates.replace('<Data ss:Type="Number">2.03<', '<Data ss:Type="Error">#DIV/0!<')
    m.open("dates_errors.xml", book(dates), "#DIV/0! in the longitude of S0003", columns=8)


def write(m):
    legal(m)
    rows = "".join(map(row, table()))
    laughs = book(rows.replace("S0001", "&e9;"), DECLARED + "<!DOCTYPE Workbook [%s]>" % LAUGHS)
    behind = book(rows, DECLARED + "<!-- sites -->\n<!DOCTYPE Workbook>")
    other = DECLARED + '<sites><site id="S0001" x="2.01" y="48.01"/></sites>'
    foreign = book(rows).replace("urn:schemas-microsoft-com", "urn:example")
    m.refused("laughs.xml", laughs, "doctype", "unfolding entities")
    m.refused("doctype.xml", behind, "doctype", "a harmless one behind a comment")
    m.refused("other.xml", other, "not-supported-format", "a table in XML, not a spreadsheet")
    m.refused("truncated.xml", book(rows)[:4000], "malformed", "cut in the middle of a row")
    m.refused("unnamed.xml", foreign, "not-supported-format", "right names in a foreign namespace")
