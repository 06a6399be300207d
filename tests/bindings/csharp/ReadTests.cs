// Reading: networks as objects, and errors.
// SPDX-License-Identifier: MIT
using System;
using System.IO;
using System.Linq;
using System.Threading;
using Vexil64;

static class ReadTests
{
    public static void GivesEachFieldOfAMessageAndItsSignals()
    {
        Message m = Roof().Messages[1];
        Expect.Equal("802 802 False RoofCommand RoofCommand 2 Door   20 1",
            string.Join(" ", m.Id, m.FrameId, m.IsExtended, m.Name, m.LongName, m.Dlc, m.Transmitter, m.Comment, m.SendType, m.CycleTime, m.Signals.Count));
        Signal s = m.Signals[0];
        Expect.Equal("Move Move   Roof What the driver asks for None 0 0 2 LittleEndian Unsigned 1 0 0 3 0 0",
            string.Join(" ", s.Name, s.LongName, s.Unit, s.AsciiUnit, s.Receivers, s.Comment, s.MultiplexType, s.MultiplexValue, s.StartBit,
                s.BitLength, s.ByteOrder, s.ValueType, s.Factor, s.Offset, s.Minimum, s.Maximum, s.StartValue, s.InactiveValue));
        Expect.Equal("0 Stop, 1 Open, 2 Close", string.Join(", ", s.Descriptions.Select(d => d.Key + " " + d.Value)));
    }

    public static void GivesEachNumberAndUnitOfASignal()
    {
        Signal s = Network.Read(Written("BO_ 2147483649 M: 8 A\n SG_ S m7 : 12|9@0- (0.5,-40) [-1.5|99.25] \"\u00B0C\" B,C\n")).Messages[0].Signals[0];
        Expect.Equal("Selected 7 12 9 BigEndian Signed", string.Join(" ", s.MultiplexType, s.MultiplexValue, s.StartBit, s.BitLength, s.ByteOrder, s.ValueType));
        Expect.Sequence(new[] { 0.5, -40, -1.5, 99.25 }, new[] { s.Factor, s.Offset, s.Minimum, s.Maximum });
        Expect.Equal("\u00B0C _C B,C", s.Unit + " " + s.AsciiUnit + " " + s.Receivers);
    }

    public static void AnExtendedIdIsSplitIntoFrameIdAndFlag()
    {
        Network network = Network.Read(Written("BO_ 2147483649 X: 8 A\nBO_ 5 Y: 8 A\n"));
        Expect.Equal("2147483649 1 True, 5 5 False", string.Join(", ", network.Messages.Select(m => m.Id + " " + m.FrameId + " " + m.IsExtended)));
    }

    public static void GivesTheRefusedStatements()
    {
        Expect.Equal("11 MessageId BO_ 0x321 RoofStatus: 1 Roof, 17 SignalName SG_ Speed 2|6@1+ (5,0) [0|100] \"mm/s\" Roof",
            string.Join(", ", Roof().Errors.Select(e => e.Line + " " + e.Step + " " + e.FirstLine)));
    }

    public static void AReadResetsTheBusType()
    {
        Network network = Network.Read(Written("BA_DEF_ \"BusType\" STRING ;\nBA_ \"BusType\" \"CAN FD\";\nBA_DEF_ \"J1939PGN\" INT 0 1;\nBA_ \"J1939PGN\" 1;\n"));
        Expect.Equal("CanFd J1939", network.BusType + " " + network.ProtocolType);
        Expect.Equal("ClassicCan PlainCan", Roof().BusType + " " + Roof().ProtocolType);
    }

    public static void FindsAMessageByIdAndByName()
    {
        Network roof = Roof();
        Expect.Equal(roof.Messages[1], roof.FindMessage(802));
        Expect.Equal(roof.Messages[1], roof.FindMessage("RoofCommand"));
        Expect.Equal(null, roof.FindMessage(801));
        Expect.Equal(roof.Messages[0].Signals[1], roof.Messages[0].FindSignal("WindowPosition"));
        Expect.Equal(null, roof.Messages[0].FindSignal("Move"));
    }

    public static void ALaterReadDoesNotChangeANetwork()
    {
        Network roof = Roof();
        Network.Read(Path.Combine(Runner.Samples, "powertrain.dbc"));
        Expect.Equal("DoorStatus, RoofCommand", string.Join(", ", roof.Messages.Select(m => m.Name)));
    }

    public static void TakesAPathWithNonAsciiCharacters()
    {
        Expect.Equal("M", Network.Read(Written("BO_ 1 M: 8 A\n", "\u2603 \U0001F4A9.dbc")).Messages[0].Name);
    }

    public static void AFileThatCannotBeReadIsAFileException()
    {
        foreach (var row in new[]
        {
            new { Path = "", Code = ResultCode.PathEmpty, Message = "cannot read \"\": the path is empty (result code 5)" },
            new { Path = "a\0b", Code = ResultCode.PathInvalid, Message = "cannot read \"a\\0b\": the path is not valid UTF-8, or contains a NUL (result code 4)" },
            new { Path = "a\uD800b", Code = ResultCode.PathInvalid, Message = "cannot read \"a\uD800b\": the path is not valid UTF-8, or contains a NUL (result code 4)" },
            new { Path = new string('a', 260), Code = ResultCode.PathTooLong, Message = "cannot read \"" + new string('a', 260) + "\": the path is longer than 259 bytes (result code 3)" },
            new { Path = "nowhere/n.dbc", Code = ResultCode.OpenFailed, Message = "cannot read \"nowhere/n.dbc\": the system could not open the file (result code 6)" }
        })
        {
            Expect.Equal(row.Code, Expect.Throws<FileException>(row.Message, () => Network.Read(row.Path)).Code);
        }
        Expect.Throws<ArgumentNullException>("", () => Network.Read(null));
    }

    public static void ConcurrentReadsGiveTheRightNetworks()
    {
        int wrong = 0;
        var threads = Enumerable.Range(0, 4).Select(i => new Thread(() =>
        {
            for (int round = 0; round < 50; ++round)
            {
                Network network = Network.Read(Path.Combine(Runner.Samples, i % 2 == 0 ? "roof.dbc" : "powertrain.dbc"));
                if (network.Messages.Count != (i % 2 == 0 ? 2 : 5) || network.Errors.Count != (i % 2 == 0 ? 2 : 0))
                    Interlocked.Increment(ref wrong);
            }
        })).ToList();
        threads.ForEach(t => t.Start());
        threads.ForEach(t => t.Join());
        Expect.Equal(0, wrong);
    }

    internal static Network Roof() { return Network.Read(Path.Combine(Runner.Samples, "roof.dbc")); }

    static string Written(string text, string name = "network.dbc")
    {
        string path = Path.Combine(Runner.Work, name);
        File.WriteAllText(path, text);
        return path;
    }
}
