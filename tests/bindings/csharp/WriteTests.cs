// Appending to networks and writing them.
// SPDX-License-Identifier: MIT
using System;
using System.IO;
using System.Linq;
using Vexil64;

static class WriteTests
{
    static readonly string File = Path.Combine(Runner.Work, "written.dbc");

    public static void AnAppendedMessageHasItsFields()
    {
        Network network = Network.New();
        Message m = network.Append(new NewMessage { Id = 291, LongName = "Engine data", Dlc = 8, Transmitter = "ECU1", Comment = "Fast" });
        Expect.Equal(network.Messages[0], m);
        Expect.Equal("291 Engine_data Engine data 8 ECU1 Fast 0", string.Join(" ", m.Id, m.Name, m.LongName, m.Dlc, m.Transmitter, m.Comment, m.Signals.Count));
    }

    public static void AnAppendedSignalHasItsFields()
    {
        Network network = Network.New();
        Message message = network.Append(new NewMessage { LongName = "M" });
        Signal s = network.Append(message, new NewSignal
        {
            LongName = "Gear", StartBit = 16, BitLength = 4, ByteOrder = ByteOrder.BigEndian, ValueType = Vexil64.ValueType.Signed,
            Factor = 2, Offset = -1, Minimum = -1, Maximum = 8.5, Unit = "\u00B5s", Receivers = "ABS,ESP", Comment = "Which",
            StartValue = -1, InactiveValue = -2, MultiplexType = Multiplex.Selected, MultiplexValue = 3
        });
        Expect.Equal(message.Signals[0], s);
        Expect.Equal("Gear Gear \u00B5s _s ABS,ESP Which Selected 3 16 4 BigEndian Signed",
            string.Join(" ", s.Name, s.LongName, s.Unit, s.AsciiUnit, s.Receivers, s.Comment, s.MultiplexType, s.MultiplexValue, s.StartBit, s.BitLength, s.ByteOrder, s.ValueType));
        Expect.Sequence(new[] { 2, -1, -1, 8.5, -1, -2 }, new[] { s.Factor, s.Offset, s.Minimum, s.Maximum, s.StartValue, s.InactiveValue });
    }

    public static void AnAppendedDescriptionIsInItsSignal()
    {
        Network network = Network.New();
        Signal gear = network.Append(network.Append(new NewMessage()), new NewSignal { LongName = "Gear", BitLength = 4 });
        network.Append(gear, 3, "Third");
        network.Append(gear, -1, "Reverse");
        network.Append(gear, 3, "3rd");
        Expect.Equal("-1 Reverse, 3 Third - 3rd", string.Join(", ", gear.Descriptions.Select(d => d.Key + " " + d.Value)));
    }

    public static void AWrittenNetworkIsReadAgain()
    {
        foreach (Order order in new[] { Order.ByIdDescending, Order.ByNameAscending, Order.AsStored })
        {
            Network network = Network.New();
            Message b = network.Append(new NewMessage { Id = 1, LongName = "B" });
            network.Append(new NewMessage { Id = 9, LongName = "C" });
            network.Append(new NewMessage { Id = 5, LongName = "A" });
            network.Append(network.Append(b, new NewSignal { LongName = "S", BitLength = 1 }), 1, "one");
            network.BusType = Bus.CanFd;
            network.ProtocolType = Protocol.J1939;
            network.Write(File, order);
            Network again = Network.Read(File);
            string expected = order == Order.ByIdDescending ? "C A B" : order == Order.ByNameAscending ? "A B C" : "B C A";
            Expect.Equal(expected, string.Join(" ", again.Messages.Select(m => m.Name)));
            Expect.Equal("one", again.FindMessage(1).Signals[0].Descriptions[1]);
            Expect.Equal("CanFd J1939", again.BusType + " " + again.ProtocolType);
        }
    }

    public static void AWriteUpdatesTheNamesOfRenamedSignals()
    {
        Network network = Network.New();
        Message message = network.Append(new NewMessage { Id = 1, LongName = "M" });
        Message other = network.Append(new NewMessage { Id = 2, LongName = "Other" });
        network.Append(message, new NewSignal { LongName = "Same", BitLength = 1 });
        network.Append(message, new NewSignal { LongName = "Same", BitLength = 1 });
        network.Write(File);
        string[] names = network.Messages[0].Signals.Select(s => s.Name).ToArray();
        Expect.Equal(2, names.Distinct().Count());
        Expect.Equal(other, network.Messages[1]);
        Expect.Sequence(Network.Read(File).Messages[0].Signals.Select(s => s.Name).ToArray(), names);
    }

    public static void AFileThatCannotBeWrittenIsAFileException()
    {
        Network network = Network.New();
        Expect.Equal(ResultCode.Closed, Expect.Throws<FileException>("cannot write \"a\": there is no message to write (result code 2)", () => network.Write("a")).Code);
        network.Append(new NewMessage { LongName = "M" });
        Expect.Equal(ResultCode.OpenFailed, Expect.Throws<FileException>("cannot write", () => network.Write(Runner.Work)).Code);
        if (System.IO.File.Exists("/dev/full"))
            Expect.Equal(ResultCode.StreamError, Expect.Throws<FileException>("cannot write", () => network.Write("/dev/full")).Code);
    }

    public static void AStaleNetworkIsRefused()
    {
        Network roof = ReadTests.Roof();
        Network.New();
        const string reason = "the library now holds another network";
        Expect.Throws<InvalidOperationException>(reason, () => roof.Write(File));
        Expect.Throws<InvalidOperationException>(reason, () => roof.Append(new NewMessage { LongName = "M" }));
        Expect.Throws<InvalidOperationException>(reason, () => roof.Append(roof.Messages[0], new NewSignal { BitLength = 1 }));
        Expect.Throws<InvalidOperationException>(reason, () => roof.Append(roof.Messages[0].Signals[0], 1, "one"));
    }

    public static void ValuesOfAnotherNetworkAreRefused()
    {
        Message message = ReadTests.Roof().Messages[0];
        Network again = ReadTests.Roof();
        Expect.Throws<ArgumentException>("DoorStatus is not part of this network", () => again.Append(message, new NewSignal { BitLength = 1 }));
        Expect.Throws<ArgumentException>("DoorStatus is not part of this network", () => again.Append(message.Signals[0], 1, "one"));
    }

    public static void TextsOfTheMaximumSizeAreAccepted()
    {
        Message message = Network.New().Append(new NewMessage { LongName = new string('x', 255), Transmitter = new string('y', 32), Comment = new string('\u00E4', 127) });
        Expect.Equal("255 32 127", message.LongName.Length + " " + message.Transmitter.Length + " " + message.Comment.Length);
    }

    public static void BadTextsAreRefused()
    {
        Network network = Network.New();
        foreach (var row in new[]
        {
            new { Message = new NewMessage { LongName = "a\0b" }, Reason = "the text contains a NUL" },
            new { Message = new NewMessage { LongName = new string('x', 256) }, Reason = "the text has 256 bytes; the maximum is 255" },
            new { Message = new NewMessage { Comment = new string('\u00E4', 128) }, Reason = "the text has 256 bytes; the maximum is 255" },
            new { Message = new NewMessage { Transmitter = new string('x', 33) }, Reason = "the text has 33 bytes; the maximum is 32" },
            new { Message = new NewMessage { Comment = "\uD800" }, Reason = "the text has a character that UTF-8 cannot encode" },
            new { Message = new NewMessage { Comment = null }, Reason = "" },
            new { Message = (NewMessage)null, Reason = "" }
        })
        {
            Expect.Throws<ArgumentException>(row.Reason, () => network.Append(row.Message));
        }
        Expect.Equal(0UL, Native.VexilGetNumCanMessages());
    }

    public static void BadSignalsAndDescriptionsAreRefused()
    {
        Network network = Network.New();
        Message message = network.Append(new NewMessage { LongName = "M" });
        Expect.Throws<ArgumentException>("the text has 33 bytes", () => network.Append(message, new NewSignal { BitLength = 1, Unit = new string('x', 33) }));
        Expect.Throws<ArgumentException>("a Float32 signal must have 32 bits", () => network.Append(message, new NewSignal { BitLength = 31, ValueType = Vexil64.ValueType.Float32 }));
        Expect.Throws<ArgumentException>("a Float64 signal must have 64 bits", () => network.Append(message, new NewSignal { BitLength = 32, ValueType = Vexil64.ValueType.Float64 }));
        Expect.Throws<ArgumentNullException>("", () => network.Append((Message)null, new NewSignal()));
        Expect.Equal(0, message.Signals.Count);
        Signal signal = network.Append(message, new NewSignal { LongName = "S", BitLength = 1 });
        Expect.Throws<ArgumentException>("the text contains a NUL", () => network.Append(signal, 1, "\0"));
        Expect.Throws<ArgumentNullException>("", () => network.Append(signal, 1, null));
        Expect.Throws<ArgumentNullException>("", () => network.Append((Signal)null, 1, "one"));
        Expect.Equal(0, signal.Descriptions.Count);
    }

    public static void AMessageTakes10000SignalsAndNoMore()
    {
        Network network = Network.New();
        Message message = network.Append(new NewMessage { LongName = "M" });
        for (int i = 0; i < Limits.MaxSignalsPerMessage; ++i)
            network.Append(message, new NewSignal { LongName = "S" + i, BitLength = 1 });
        Expect.Throws<InvalidOperationException>("M already has 10000 signals", () => network.Append(message, new NewSignal { LongName = "S", BitLength = 1 }));
        Expect.Equal(10000, message.Signals.Count);
    }
}
