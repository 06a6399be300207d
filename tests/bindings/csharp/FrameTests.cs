// Decoding and encoding give the results of vexil64_frame.h.
// SPDX-License-Identifier: MIT
using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Vexil64;

static class FrameTests
{
    const int Cases = 20000;

    sealed class Case
    {
        public Signal Signal;
        public double Value;
        public ulong Raw;
        public byte[] Data;
    }

    public static void GivesTheSameResultsAsTheHeader()
    {
        var random = new Random(64);
        List<Case> cases = Enumerable.Range(0, Cases).Select(i => AnyCase(random)).ToList();
        string questions = string.Join("", cases.Select(c => Question(c) + "\n"));
        string[] expected = Runner.Output(Runner.FrameAnswers, questions).Split(new[] { '\n' }, StringSplitOptions.RemoveEmptyEntries);
        Expect.Equal(Cases, expected.Length);
        // The random cases must produce every result.
        var results = expected.SelectMany(line => line.Split(' ').Take(7)).Select(part => part.Split(':')[0]).Distinct().OrderBy(r => r);
        Expect.Equal("0 2 3 4 5 6", string.Join(" ", results));
        for (int i = 0; i < Cases; ++i)
            Expect.Equal(Question(cases[i]) + " " + expected[i], Question(cases[i]) + " " + Answer(cases[i]));
    }

    public static void RawValuesOfSignedSignalsAreSignExtended()
    {
        var signal = Blank(new CanSignalRecord { BitLength = 4, ByteOrder = ByteOrder.LittleEndian, ValueType = Vexil64.ValueType.Signed, Factor = 1 });
        Expect.Equal(-1L, (long)Frame.DecodeRaw(signal, new byte[] { 0xFF }));
        Expect.Equal(-8L, (long)Frame.ValueToRaw(signal, -8));
        Expect.Equal(FrameResult.OutOfRange, Expect.Throws<FrameException>(": the value is out of range", () => Frame.ValueToRaw(signal, 8)).Result);
    }

    public static void AMessageDecodesTheSignalsThatArePresent()
    {
        Message message = Network.Read(Path.Combine(Runner.Samples, "powertrain.dbc")).FindMessage(512);
        var values = Frame.Decode(message, new byte[] { 1, 0xE8, 3, 0, 0, 0, 0, 0 });
        Expect.Equal("BoostPressure 100, Page 1", string.Join(", ", values.OrderBy(v => v.Key).Select(v => v.Key + " " + v.Value)));
        Expect.Throws<FrameException>("BoostPressure: the frame is too short for the signal", () => Frame.Decode(message, new byte[] { 1 }));
    }

    public static void NullArgumentsAreRefused()
    {
        var signal = Blank(new CanSignalRecord { BitLength = 8, Factor = 1 });
        Expect.Throws<ArgumentNullException>("", () => Frame.Decode((Signal)null, new byte[8]));
        Expect.Throws<ArgumentNullException>("", () => Frame.Decode((Message)null, new byte[8]));
        Expect.Throws<ArgumentNullException>("", () => Frame.Decode(signal, null));
        Expect.Throws<ArgumentNullException>("", () => Frame.Encode(signal, 1, null));
        Expect.Throws<ArgumentNullException>("", () => Frame.IsPresent(null, signal, new byte[8]));
        Expect.Throws<ArgumentNullException>("", () => Frame.IsWithinLimits(null, 1));
        Expect.Throws<FrameException>(": the message has no multiplexer", () =>
            Frame.IsPresent(Blank(new CanSignalRecord { MultiplexType = Multiplex.Selected }), null, new byte[8]));
    }

    static Signal Blank(CanSignalRecord record)
    {
        record.Name = record.LongName = record.Unit = record.ReceiverList = record.Comment = record.UnitUtf8 = new byte[1];
        return new Signal(record);
    }

    static double AnyNumber(Random random)
    {
        switch (random.Next(10))
        {
            case 0: return random.NextDouble() * 600 - 300;
            case 1: return random.Next(-300, 300);
            case 2: return random.Next(-600, 600) / 2.0;
            case 3: return BitConverter.Int64BitsToDouble((long)AnyBits(random));
            case 4: return 0;
            case 5: return double.PositiveInfinity;
            case 6: return double.NegativeInfinity;
            case 7: return double.NaN;
            case 8: return OneOf<double>(random, float.MaxValue, -float.MaxValue, float.MaxValue * (1 + 1e-15));
            default: return Math.Pow(2, random.Next(-1074, 1024));
        }
    }

    static ulong AnyBits(Random random)
    {
        var bytes = new byte[8];
        random.NextBytes(bytes);
        return BitConverter.ToUInt64(bytes, 0);
    }

    static T OneOf<T>(Random random, params T[] choices) { return choices[random.Next(choices.Length)]; }

    // A random case. Most combinations are valid.
    static Case AnyCase(Random random)
    {
        int size = OneOf(random, 1, 2, 3, 8, 8, 8, 12, 64);
        var record = new CanSignalRecord();
        record.ValueType = (Vexil64.ValueType)OneOf<uint>(random, 0, 0, 0, 1, 1, 2, 3, random.Next(10) == 0 ? 4u : 0);
        record.BitLength = record.ValueType == Vexil64.ValueType.Float32 ? 32 : record.ValueType == Vexil64.ValueType.Float64 ? 64 : (uint)random.Next(1, 65);
        if (random.Next(30) == 0)
            record.BitLength = OneOf<uint>(random, 0, 31, 65, uint.MaxValue);
        record.StartBit = random.Next(40) == 0 ? uint.MaxValue : OneOf<uint>(random, 0, 7, (uint)random.Next(8 * size + 1));
        record.ByteOrder = (ByteOrder)(random.Next(40) == 0 ? 2 : random.Next(2));
        record.Factor = OneOf(random, 1, 1, 0.5, -0.25, 0.1, 1e300, 0, AnyNumber(random));
        record.Offset = OneOf(random, 0, 0, -40, 0.3, AnyNumber(random));
        record.Minimum = AnyNumber(random);
        record.Maximum = AnyNumber(random);
        record.MultiplexType = (Multiplex)random.Next(4);
        record.MultiplexValue = (uint)random.Next(4);
        var data = new byte[size];
        if (random.Next(2) == 0)
            random.NextBytes(data);
        else
            data[0] = (byte)random.Next(4);
        ulong raw = OneOf(random, (ulong)random.Next(256), AnyBits(random), unchecked((ulong)-random.Next(1, 200)));
        return new Case { Signal = Blank(record), Value = AnyNumber(random), Raw = raw, Data = data };
    }

    static string Bits(double number) { return BitConverter.DoubleToInt64Bits(number).ToString("x16"); }

    static string Hex(byte[] data) { return string.Concat(data.Select(b => b.ToString("x2"))); }

    static string Question(Case c)
    {
        Signal s = c.Signal;
        return string.Join(" ", s.StartBit, s.BitLength, (uint)s.ByteOrder, (uint)s.ValueType, Bits(s.Factor), Bits(s.Offset), Bits(s.Minimum), Bits(s.Maximum),
            (uint)s.MultiplexType, s.MultiplexValue, Bits(c.Value), c.Raw, Hex(c.Data));
    }

    static string Result(Func<string> function)
    {
        try
        {
            return "0:" + function();
        }
        catch (FrameException error)
        {
            return ((int)error.Result).ToString();
        }
    }

    static string Encoded(Case c, Action<byte[]> encode)
    {
        var data = (byte[])c.Data.Clone();
        try
        {
            encode(data);
        }
        catch (FrameException)
        {
            Expect.Sequence(c.Data, data);
            throw;
        }
        return Hex(data);
    }

    // Returns the line that frame_answers.c prints for a case.
    static string Answer(Case c)
    {
        var selector = Blank(new CanSignalRecord { MultiplexType = Multiplex.Selector, BitLength = 8, ByteOrder = ByteOrder.LittleEndian });
        return string.Join(" ",
            Result(() => Frame.DecodeRaw(c.Signal, c.Data).ToString()),
            Result(() => Bits(Frame.Decode(c.Signal, c.Data))),
            Result(() => Encoded(c, data => Frame.EncodeRaw(c.Signal, c.Raw, data))),
            Result(() => Encoded(c, data => Frame.Encode(c.Signal, c.Value, data))),
            Result(() => Bits(Frame.RawToValue(c.Signal, c.Raw))),
            Result(() => Frame.ValueToRaw(c.Signal, c.Value).ToString()),
            Result(() => { if (!Frame.IsPresent(c.Signal, selector, c.Data)) throw new FrameException("", FrameResult.NotPresent); return ""; }).TrimEnd(':'),
            Frame.IsWithinLimits(c.Signal, c.Value) ? "1" : "0");
    }
}
