# Networks that the tests of the report make.
# SPDX-License-Identifier: MIT

# Texts that would run a script, load something or break the page if they were taken for markup.
HOSTILE = [
    "<script>window.ran=1</script>",
    "</script><script>window.ran=1</script>",
    "</style><script>window.ran=1</script>",
    "</title><script>window.ran=1</script>",
    "<img src=x onerror=window.ran=1>",
    "<svg onload=window.ran=1>",
    "<svg><script>window.ran=1</script></svg>",
    "<iframe src=javascript:window.ran=1>",
    "<a href=javascript:window.ran=1>a</a>",
    "<link rel=stylesheet href=http://127.0.0.1:9/a.css>",
    "<base href=http://127.0.0.1:9/>",
    "<meta http-equiv=refresh content=0,url=http://127.0.0.1:9/>",
    "<form action=http://127.0.0.1:9/><button>b</button></form>",
    "--><script>window.ran=1</script><!--",
    "<![CDATA[<script>window.ran=1</script>]]>",
    "{{&script}} {{{style}}} {{#messages}}{{/messages}}",
    "{{=<% %>=}}<%&script%>",
    "${window.ran=1} `${window.ran=1}`",
    "javascript:window.ran=1",
    "data:text/html,<script>window.ran=1</script>",
    "&lt;script&gt;window.ran=1&lt;/script&gt;",
    "&#60;script&#62;window.ran=1&#60;/script&#62;",
    "' onclick=window.ran=1 a='",
    "` onmouseover=window.ran=1 `",
    "\u202egnp.exe\u2066\u2028\u2029<b>",
    "\\u003cscript\\u003e __proto__ constructor",
]


def hostile(text, number):
    """A message with the text in each of its fields."""
    unit = text[:30]
    name = text.replace(":", "")  # which ends a name
    return f"""BO_ {number} {name}: 8 {text}
 SG_ {name} : 0|8@1+ (1,0) [0|255] "{unit}" {text}
 SG_ Plain : 8|8@1+ (1,0) [0|255] "{unit}" {text}
BO_ {number}x {text}: 8 {text}
CM_ BO_ {number} "{text}";
CM_ SG_ {number} Plain "{text}";
VAL_ {number} Plain 0 "{text}" ;
BA_ "GenMsgSendType" BO_ {number} {number % 3};
BA_ "Marrowby_Msg_Name" BO_ {number} "{text}";
BA_ "{text}" BO_ {number} 1;
CM_ "{text}";
VERSION "{text}"
"""


def hostile_network():
    definitions = """BA_DEF_ BO_ "GenMsgSendType" ENUM "None","<script>window.ran=1</script>","<svg/onload=window.ran=1>";
BA_DEF_DEF_ "GenMsgSendType" "None";
BA_DEF_ BO_ "Marrowby_Msg_Name" STRING ;
BA_DEF_DEF_ "Marrowby_Msg_Name" "";
"""
    return definitions + "".join(hostile(text, 100 + index) for index, text in enumerate(HOSTILE))


def large_network(messages=1000, signals=10):
    """Messages with signals of six bits, comments and value descriptions."""
    nodes = ["Engine", "Gearbox", "Brakes", "Cluster", "Body", "Radar"]
    lines = ["BU_: " + " ".join(nodes)]
    later = []
    for number in range(messages):
        lines.append(f"BO_ {256 + number} {nodes[number % 6]}Status_{number}: 8 {nodes[number % 6]}")
        for index in range(signals):
            factor, unit = [("0.5", "V"), ("1", ""), ("0.25", "km/h"), ("0.1", "bar")][index % 4]
            lines.append(f" SG_ Quantity_{number}_{index} : {index * 6}|6@1+ ({factor},0) "
                         f'[0|{63 * float(factor):g}] "{unit}" {nodes[(number + index) % 6]}')
        later.append(f'CM_ BO_ {256 + number} "What message {number} is for.";')
        later.append(f'CM_ SG_ {256 + number} Quantity_{number}_1 "What this signal means.";')
        later.append(f'VAL_ {256 + number} Quantity_{number}_1 0 "Off" 1 "On" 2 "Not available" ;')
    return "\n".join(lines + later) + "\n"
