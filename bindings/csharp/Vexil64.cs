// vexil64 for C#: reads, extends and writes DBC files, the descriptions of CAN bus networks. Add this one
// file to a program. It needs vexil64.dll or libvexil64.so, C# 6, and .NET, .NET Framework 4.5 or Mono.
// SPDX-License-Identifier: MIT
//
//  1. Network is the object layer: everything that it holds is a plain value. Records and Native are the
//     records and the seventeen functions of vexil64.h, where their rules are described.
//  2. The library has one database, which holds the network that was read or made last. Only that one
//     can be extended and written.
//  3. Network takes a lock for each use of the library. A program that calls Native itself, from several
//     threads, needs one of its own.
//  4. Errors. A file that cannot be read or written is a FileException with the result code. A missing
//     library, or one of another version, is a LibraryException. A bad argument is an ArgumentException
//     before the library is called. A value that cannot be decoded or encoded is a FrameException.
using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;
using System.Text;

namespace Vexil64
{
    // -- Constants, as in vexil64.h --

    public enum ResultCode : uint
    {
        Reading = 0, Writing = 1, Closed = 2, PathTooLong = 3, PathInvalid = 4, PathEmpty = 5,
        OpenFailed = 6, StreamError = 8, EndOfFile = 9
    }

    public enum Step : uint
    {
        MessageId = 0, MessageName = 1, MessageSize = 2, SignalName = 3, SignalLayout = 4,
        SignalScaling = 5, SignalRange = 6
    }

    public enum Protocol : uint { PlainCan = 0, J1939 = 1, Nmea = 2 }

    public enum Bus : uint { ClassicCan = 0, CanFd = 1 }

    public enum Multiplex : uint { None = 0, Selector = 1, Selected = 2 }

    public enum ByteOrder : uint { BigEndian = 0, LittleEndian = 1 }

    public enum ValueType : uint { Unsigned = 0, Signed = 1, Float32 = 2, Float64 = 3 }

    public enum Order : uint { ByIdDescending = 0, ByNameAscending = 1, AsStored = 2 }

    public static class Limits
    {
        public const int ShortTextSize = 33;
        public const int LongTextSize = 256;
        public const int MaxPathBufferSize = 260;
        public const int MaxSignalsPerMessage = 10000;
    }

    // -- Records. They have the natural alignment of their fields, so they need no packing. --

    [StructLayout(LayoutKind.Sequential)]
    public struct DatabaseInfo
    {
        public Protocol ProtocolType;
        public Bus BusType;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct CanMessageRecord
    {
        public uint Id;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] Name;
        public uint Dlc;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] LongName;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] Transmitter;
        public ulong SignalCount;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] Comment;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] SendType;
        public int CycleTime;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct CanSignalRecord
    {
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] Name;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] LongName;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] Unit;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] ReceiverList;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] Comment;
        public Multiplex MultiplexType;
        public uint MultiplexValue;
        public uint StartBit;
        public uint BitLength;
        public ByteOrder ByteOrder;
        public ValueType ValueType;
        public double Factor;
        public double Offset;
        public double Minimum;
        public double Maximum;
        public uint EnumCount;
        public int StartValue;
        public int InactiveValue;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.ShortTextSize)] public byte[] UnitUtf8;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct CanEnumRecord
    {
        public int Value;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] Text;
    }

    [StructLayout(LayoutKind.Sequential)]
    public struct ParseError
    {
        public Step Code;
        public uint Line;
        [MarshalAs(UnmanagedType.ByValArray, SizeConst = Limits.LongTextSize)] public byte[] Text;
    }

    // -- The seventeen functions. A bool of C# would be four bytes, so the results are bytes. --

    public static class Native
    {
        private const string Library = "vexil64";

        [DllImport(Library)] public static extern float VexilGetLibraryVersion();
        [DllImport(Library)] public static extern byte VexilReadDbcFile(byte[] path, uint pathBufferSize, out ResultCode resultCode);
        [DllImport(Library)] public static extern void VexilClearData();
        [DllImport(Library)] public static extern void VexilGetDatabaseInfo(out DatabaseInfo destination, ulong size);
        [DllImport(Library)] public static extern void VexilSetDatabaseInfo(ref DatabaseInfo source, ulong size);
        [DllImport(Library)] public static extern ulong VexilGetNumCanMessages();
        [DllImport(Library)] public static extern byte VexilGetCanMessageData(uint messageIndex, out CanMessageRecord record);
        [DllImport(Library)] public static extern byte VexilGetNumCanSignalsInCanMessage(uint messageIndex, out uint count);
        [DllImport(Library)] public static extern byte VexilGetCanSignalData(uint messageIndex, uint signalIndex, out CanSignalRecord record);
        [DllImport(Library)] public static extern byte VexilGetNumEnumsInCanSignal(uint messageIndex, uint signalIndex, out uint count);
        [DllImport(Library)] public static extern byte VexilGetCanSignalEnumData(uint messageIndex, uint signalIndex, uint enumIndex, out CanEnumRecord record);
        [DllImport(Library)] public static extern byte VexilAppendCanMessage(ref CanMessageRecord record);
        [DllImport(Library)] public static extern byte VexilAppendCanSignalToCanMessage(uint messageIndex, ref CanSignalRecord record);
        [DllImport(Library)] public static extern byte VexilAppendEnumToCanSignal(uint messageIndex, uint signalIndex, ref CanEnumRecord record);
        [DllImport(Library)] public static extern ulong VexilGetNumCanErrors();
        [DllImport(Library)] public static extern byte VexilGetErrorData(uint errorIndex, out ParseError record);
        [DllImport(Library)] public static extern byte VexilWriteDbcFile(byte[] path, uint pathBufferSize, Order order, out ResultCode resultCode);
    }

    // -- Exceptions --

    public class VexilException : Exception
    {
        public VexilException(string message, Exception cause = null) : base(message, cause) { }
    }

    // The library is missing, cannot be loaded, or is not the one that this file needs.
    public sealed class LibraryException : VexilException
    {
        public LibraryException(string message, Exception cause = null) : base(message, cause) { }
    }

    // A file could not be read or written.
    public sealed class FileException : VexilException
    {
        public ResultCode Code { get; }

        internal FileException(string action, string path, ResultCode code)
            : base("cannot " + action + " \"" + path + "\": " + Reason(code) + " (result code " + (uint)code + ")")
        {
            Code = code;
        }

        private static string Reason(ResultCode code)
        {
            switch (code)
            {
                case ResultCode.Closed: return "there is no message to write";
                case ResultCode.PathTooLong: return "the path is longer than 259 bytes";
                case ResultCode.PathInvalid: return "the path is not valid UTF-8, or contains a NUL";
                case ResultCode.PathEmpty: return "the path is empty";
                case ResultCode.OpenFailed: return "the system could not open the file";
                default: return "reading or writing failed";
            }
        }
    }

    public enum FrameResult
    {
        Ok = 0, BadLayout = 2, TooShort = 3, BadScaling = 4, OutOfRange = 5, NotPresent = 6, NoSelector = 7
    }

    // A value could not be decoded or encoded.
    public sealed class FrameException : VexilException
    {
        public FrameResult Result { get; }

        public FrameException(string signal, FrameResult result) : base(signal + ": " + Reason(result))
        {
            Result = result;
        }

        private static string Reason(FrameResult result)
        {
            switch (result)
            {
                case FrameResult.BadLayout: return "length, byte order or value type of the signal is not valid";
                case FrameResult.TooShort: return "the frame is too short for the signal";
                case FrameResult.BadScaling: return "factor or offset of the signal is not valid";
                case FrameResult.OutOfRange: return "the value is out of range";
                case FrameResult.NotPresent: return "the multiplexer selects other signals";
                case FrameResult.NoSelector: return "the message has no multiplexer";
                default: return "unknown result";
            }
        }
    }

    // -- Text --

    public static class Text
    {
        private static readonly UTF8Encoding Strict = new UTF8Encoding(false, true);

        // The text of a field: UTF-8 up to the NUL.
        public static string Load(byte[] field)
        {
            int end = Array.IndexOf(field, (byte)0);
            return Encoding.UTF8.GetString(field, 0, end < 0 ? field.Length : end);
        }

        // A text as the bytes of a field. Throws ArgumentException with the name of the field.
        public static byte[] Store(string name, string text, int size)
        {
            if (text == null)
                throw new ArgumentNullException(name);
            if (text.IndexOf('\0') >= 0)
                throw new ArgumentException("the text contains a NUL", name);
            byte[] bytes;
            try
            {
                bytes = Strict.GetBytes(text);
            }
            catch (EncoderFallbackException)
            {
                throw new ArgumentException("the text has a character without a UTF-8 form", name);
            }
            if (bytes.Length >= size)
                throw new ArgumentException("the text has " + bytes.Length + " bytes, at most " + (size - 1) + " are possible", name);
            Array.Resize(ref bytes, size);
            return bytes;
        }

        // A path as the library takes it, with its NUL. Throws FileException.
        internal static byte[] StorePath(string action, string path)
        {
            if (path == null)
                throw new ArgumentNullException("path");
            byte[] bytes;
            try
            {
                bytes = Strict.GetBytes(path + "\0");
            }
            catch (EncoderFallbackException)
            {
                throw new FileException(action, path, ResultCode.PathInvalid);
            }
            if (path.IndexOf('\0') >= 0)
                throw new FileException(action, path.Replace("\0", "\\0"), ResultCode.PathInvalid);
            if (bytes.Length > Limits.MaxPathBufferSize)
                throw new FileException(action, path, ResultCode.PathTooLong);
            return bytes;
        }
    }

    // -- What a network is made of: values that do not change --

    // A statement that could not be read.
    public sealed class StatementError
    {
        public StatementError(ParseError record)
        {
            Line = record.Line;
            Step = record.Code;
            // The text lacks its last byte, which may be a part of a character.
            Text = Vexil64.Text.Load(record.Text).TrimEnd('\uFFFD');
        }

        public uint Line { get; }
        public Step Step { get; }
        public string Text { get; }             // the front of the statement
        public string FirstLine { get { return Text.Split('\n')[0]; } }
    }

    public sealed class Signal
    {
        internal readonly SortedDictionary<int, string> descriptions = new SortedDictionary<int, string>();
        internal readonly Message message;
        internal readonly uint position;

        public Signal(CanSignalRecord record, Message message = null, uint position = 0)
        {
            this.message = message;
            this.position = position;
            Name = Text.Load(record.Name);
            LongName = Text.Load(record.LongName);
            Unit = Text.Load(record.UnitUtf8);
            AsciiUnit = Text.Load(record.Unit);
            Receivers = Text.Load(record.ReceiverList);
            Comment = Text.Load(record.Comment);
            MultiplexType = record.MultiplexType;
            MultiplexValue = record.MultiplexValue;
            StartBit = record.StartBit;
            BitLength = record.BitLength;
            ByteOrder = record.ByteOrder;
            ValueType = record.ValueType;
            Factor = record.Factor;
            Offset = record.Offset;
            Minimum = record.Minimum;
            Maximum = record.Maximum;
            StartValue = record.StartValue;
            InactiveValue = record.InactiveValue;
        }

        public string Name { get; }
        public string LongName { get; }
        public string Unit { get; }
        public string AsciiUnit { get; }
        public string Receivers { get; }        // with commas between them
        public string Comment { get; }
        public Multiplex MultiplexType { get; }
        public uint MultiplexValue { get; }
        public uint StartBit { get; }
        public uint BitLength { get; }
        public ByteOrder ByteOrder { get; }
        public ValueType ValueType { get; }
        public double Factor { get; }
        public double Offset { get; }
        public double Minimum { get; }
        public double Maximum { get; }
        public int StartValue { get; }
        public int InactiveValue { get; }
        public IReadOnlyDictionary<int, string> Descriptions { get { return descriptions; } }  // by raw value
    }

    public sealed class Message
    {
        internal readonly List<Signal> signals = new List<Signal>();
        internal readonly uint position;

        public Message(CanMessageRecord record, uint position = 0)
        {
            this.position = position;
            Id = record.Id;
            Name = Text.Load(record.Name);
            LongName = Text.Load(record.LongName);
            Dlc = record.Dlc;
            Transmitter = Text.Load(record.Transmitter);
            Comment = Text.Load(record.Comment);
            SendType = Text.Load(record.SendType);
            CycleTime = record.CycleTime;
        }

        public uint Id { get; }                 // bit 31 marks an extended frame
        public uint FrameId { get { return Id & 0x7FFFFFFF; } }
        public bool IsExtended { get { return Id >> 31 != 0; } }
        public string Name { get; }
        public string LongName { get; }
        public uint Dlc { get; }                // size in bytes
        public string Transmitter { get; }
        public string Comment { get; }
        public string SendType { get; }
        public int CycleTime { get; }           // milliseconds
        public IReadOnlyList<Signal> Signals { get { return signals; } }

        // The multiplexer, or null.
        public Signal Selector { get { return signals.Find(s => s.MultiplexType == Multiplex.Selector); } }

        // The first signal of a name, or null.
        public Signal FindSignal(string name) { return signals.Find(s => s.Name == name); }
    }

    // -- What is added to a network --

    public sealed class NewMessage
    {
        public uint Id { get; set; }
        public string LongName { get; set; } = "";      // the name is made from it
        public uint Dlc { get; set; }
        public string Transmitter { get; set; } = "";
        public string Comment { get; set; } = "";

        internal CanMessageRecord Record()
        {
            return new CanMessageRecord
            {
                Id = Id,
                Dlc = Dlc,
                LongName = Text.Store("LongName", LongName, Limits.LongTextSize),
                Transmitter = Text.Store("Transmitter", Transmitter, Limits.ShortTextSize),
                Comment = Text.Store("Comment", Comment, Limits.LongTextSize)
            };
        }
    }

    public sealed class NewSignal
    {
        public string LongName { get; set; } = "";      // the name is made from it
        public string Unit { get; set; } = "";
        public string Receivers { get; set; } = "";     // with commas between them
        public string Comment { get; set; } = "";
        public Multiplex MultiplexType { get; set; }
        public uint MultiplexValue { get; set; }
        public uint StartBit { get; set; }
        public uint BitLength { get; set; }
        public ByteOrder ByteOrder { get; set; } = ByteOrder.LittleEndian;
        public ValueType ValueType { get; set; }
        public double Factor { get; set; } = 1;
        public double Offset { get; set; }
        public double Minimum { get; set; }
        public double Maximum { get; set; }
        public int StartValue { get; set; }
        public int InactiveValue { get; set; }

        internal CanSignalRecord Record()
        {
            // The library would take them as signed integers.
            if ((ValueType == ValueType.Float32 && BitLength != 32) || (ValueType == ValueType.Float64 && BitLength != 64))
                throw new ArgumentException("a " + ValueType + " signal has another length", "BitLength");
            return new CanSignalRecord
            {
                LongName = Text.Store("LongName", LongName, Limits.LongTextSize),
                Unit = Text.Store("Unit", Unit, Limits.ShortTextSize),
                ReceiverList = Text.Store("Receivers", Receivers, Limits.LongTextSize),
                Comment = Text.Store("Comment", Comment, Limits.LongTextSize),
                MultiplexType = MultiplexType,
                MultiplexValue = MultiplexValue,
                StartBit = StartBit,
                BitLength = BitLength,
                ByteOrder = ByteOrder,
                ValueType = ValueType,
                Factor = Factor,
                Offset = Offset,
                Minimum = Minimum,
                Maximum = Maximum,
                StartValue = StartValue,
                InactiveValue = InactiveValue
            };
        }
    }

    // -- Networks --

    public sealed class Network
    {
        public const string LibraryVersion = "1.33";

        private const ulong InfoSize = 8;
        private static readonly object Gate = new object();
        private static bool isChecked;          // the library is there, and has the right version
        private static Network current;         // the one that the database of the library holds

        private readonly List<Message> messages = new List<Message>();
        private readonly List<StatementError> errors = new List<StatementError>();

        // Reads a file. Statements that cannot be read do not fail a read: they are in Errors.
        public static Network Read(string path)
        {
            byte[] bytes = Text.StorePath("read", path);
            lock (Gate)
            {
                Start();
                ResultCode code;
                if (Native.VexilReadDbcFile(bytes, (uint)bytes.Length, out code) == 0)
                    throw new FileException("read", path, code);
                return current = new Network();
            }
        }

        // Returns a network without messages, to be filled and written.
        public static Network New()
        {
            lock (Gate)
            {
                Start();
                return current = new Network();
            }
        }

        public IReadOnlyList<Message> Messages { get { return messages; } }
        public IReadOnlyList<StatementError> Errors { get { return errors; } }
        public Protocol ProtocolType { get; set; }
        public Bus BusType { get; set; }

        // The first message with an id or a name, or null.
        public Message FindMessage(uint id) { return messages.Find(m => m.Id == id); }
        public Message FindMessage(string name) { return messages.Find(m => m.Name == name); }

        // Adds a message at the end and returns it.
        public Message Append(NewMessage message)
        {
            if (message == null)
                throw new ArgumentNullException("message");
            CanMessageRecord record = message.Record();
            lock (Gate)
            {
                CheckCurrent();
                Expect(Native.VexilAppendCanMessage(ref record));
                messages.Add(FetchMessage((uint)messages.Count));
                return messages[messages.Count - 1];
            }
        }

        // Adds a signal at the end of a message and returns it.
        public Signal Append(Message message, NewSignal signal)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            CanSignalRecord record = signal.Record();
            lock (Gate)
            {
                CheckCurrent();
                CheckOwned(message);
                if (message.signals.Count >= Limits.MaxSignalsPerMessage)
                    throw new InvalidOperationException(message.Name + " has " + Limits.MaxSignalsPerMessage + " signals already");
                Expect(Native.VexilAppendCanSignalToCanMessage(message.position, ref record));
                message.signals.Add(FetchSignal(message, (uint)message.signals.Count));
                return message.signals[message.signals.Count - 1];
            }
        }

        // Describes a raw value of a signal. A value that is described already gets both texts.
        public void Append(Signal signal, int value, string text)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            var record = new CanEnumRecord { Value = value, Text = Text.Store("text", text, Limits.LongTextSize) };
            lock (Gate)
            {
                CheckCurrent();
                CheckOwned(signal.message);
                Expect(Native.VexilAppendEnumToCanSignal(signal.message.position, signal.position, ref record));
                FetchDescriptions(signal);
            }
        }

        // Writes the network to a file. Signals of one message that share a name get a numbered suffix, for
        // which new objects replace their message and its signals in Messages.
        public void Write(string path, Order order = Order.AsStored)
        {
            byte[] bytes = Text.StorePath("write", path);
            lock (Gate)
            {
                CheckCurrent();
                var info = new DatabaseInfo { ProtocolType = ProtocolType, BusType = BusType };
                Native.VexilSetDatabaseInfo(ref info, InfoSize);
                ResultCode code;
                byte success = Native.VexilWriteDbcFile(bytes, (uint)bytes.Length, order, out code);
                // The last line of a file that failed is a success with another code.
                if (success == 0 || code != ResultCode.Closed)
                    throw new FileException("write", path, code);
                TakeNewNames();
            }
        }

        // Takes what the database holds.
        private Network()
        {
            DatabaseInfo info;
            Native.VexilGetDatabaseInfo(out info, InfoSize);
            ProtocolType = info.ProtocolType;
            BusType = info.BusType;
            for (Message message; (message = FetchMessage((uint)messages.Count)) != null;)
                messages.Add(message);
            ParseError record;
            while (Native.VexilGetErrorData((uint)errors.Count, out record) != 0)
                errors.Add(new StatementError(record));
        }

        // Empties the database. The bus type would otherwise outlive the network before.
        private static void Start()
        {
            if (!isChecked)
                CheckLibrary();
            isChecked = true;
            current = null;
            var info = new DatabaseInfo();
            Native.VexilClearData();
            Native.VexilSetDatabaseInfo(ref info, InfoSize);
        }

        private static void CheckLibrary()
        {
            string version;
            try
            {
                version = Native.VexilGetLibraryVersion().ToString("0.00", System.Globalization.CultureInfo.InvariantCulture);
            }
            catch (DllNotFoundException error)
            {
                throw new LibraryException("the vexil64 library was not found. Put vexil64.dll or libvexil64.so beside the program, or install it. " + error.Message, error);
            }
            catch (BadImageFormatException error)
            {
                throw new LibraryException("the vexil64 library is of 64 bits, and this program is not, or its file is damaged", error);
            }
            catch (EntryPointNotFoundException error)
            {
                throw new LibraryException("the library that was found is not vexil64: it has no VexilGetLibraryVersion", error);
            }
            if (version != LibraryVersion)
                throw new LibraryException("the library is vexil64 " + version + ", and this program needs vexil64 " + LibraryVersion);
        }

        private void CheckCurrent()
        {
            if (current != this)
                throw new InvalidOperationException("the library holds another network by now; read or make this one again");
        }

        private void CheckOwned(Message message)
        {
            if (message == null)
                throw new ArgumentNullException("message");
            if (message.position >= messages.Count || messages[(int)message.position] != message)
                throw new ArgumentException(message.Name + " is not of this network", "message");
        }

        // The arguments were checked, so a call can only fail where Native was used to change the database.
        private static void Expect(byte success)
        {
            if (success == 0)
                throw new InvalidOperationException("the database of the library was changed by others");
        }

        private static Message FetchMessage(uint index)
        {
            CanMessageRecord record;
            if (Native.VexilGetCanMessageData(index, out record) == 0)
                return null;
            var message = new Message(record, index);
            for (uint s = 0; s < record.SignalCount; ++s)
                message.signals.Add(FetchSignal(message, s));
            return message;
        }

        private static Signal FetchSignal(Message message, uint index)
        {
            CanSignalRecord record;
            Expect(Native.VexilGetCanSignalData(message.position, index, out record));
            var signal = new Signal(record, message, index);
            if (record.EnumCount != 0)
                FetchDescriptions(signal);
            return signal;
        }

        private static void FetchDescriptions(Signal signal)
        {
            uint count;
            Expect(Native.VexilGetNumEnumsInCanSignal(signal.message.position, signal.position, out count));
            for (uint e = 0; e < count; ++e)
            {
                CanEnumRecord record;
                // Fails for a text that cannot be cut at a character, and the next one may be sound.
                if (Native.VexilGetCanSignalEnumData(signal.message.position, signal.position, e, out record) != 0)
                    signal.descriptions[record.Value] = Text.Load(record.Text);
            }
        }

        private void TakeNewNames()
        {
            for (int m = 0; m < messages.Count; ++m)
            {
                Message fetched = FetchMessage((uint)m);
                for (int s = 0; s < fetched.signals.Count; ++s)
                {
                    if (fetched.signals[s].Name != messages[m].signals[s].Name)
                    {
                        messages[m] = fetched;
                        break;
                    }
                }
            }
        }
    }

    // -- The value of a signal in the bytes of a frame, and back: the rules of vexil64_frame.h. A function
    // -- that throws changes no byte of the frame.

    public static class Frame
    {
        // The physical value of a signal.
        public static double Decode(Signal signal, byte[] data)
        {
            return RawToValue(signal, DecodeRaw(signal, data));
        }

        // Stores a physical value. No bit outside the signal changes.
        public static void Encode(Signal signal, double value, byte[] data)
        {
            EncodeRaw(signal, ValueToRaw(signal, value), data);
        }

        // The physical values of the signals that are present in a frame, by name.
        public static Dictionary<string, double> Decode(Message message, byte[] data)
        {
            if (message == null)
                throw new ArgumentNullException("message");
            var values = new Dictionary<string, double>();
            Signal selector = message.Selector;
            foreach (Signal signal in message.Signals)
            {
                if (IsPresent(signal, selector, data))
                    values[signal.Name] = Decode(signal, data);
            }
            return values;
        }

        // The raw value. That of a signed signal is extended with its sign, so that the cast to long gives
        // its number; that of a floating-point signal is its bit pattern.
        public static ulong DecodeRaw(Signal signal, byte[] data)
        {
            CheckLayout(signal);
            CheckBounds(signal, data);
            int step = signal.ByteOrder == ByteOrder.LittleEndian ? 1 : -1;
            long lowest = LowestBit(signal);
            long at = lowest / 8;
            ulong bits = (ulong)data[at] >> (int)(lowest % 8);
            for (int count = 8 - (int)(lowest % 8); count < signal.BitLength; count += 8)
            {
                at += step;
                bits |= (ulong)data[at] << count;
            }
            return ExtendSign(signal, bits & Mask(signal.BitLength));
        }

        // Stores a raw value. No bit outside the signal changes.
        public static void EncodeRaw(Signal signal, ulong raw, byte[] data)
        {
            CheckLayout(signal);
            CheckBounds(signal, data);
            ulong mask = Mask(signal.BitLength);
            if (raw != ExtendSign(signal, raw & mask))
                throw new FrameException(signal.Name, FrameResult.OutOfRange);
            int step = signal.ByteOrder == ByteOrder.LittleEndian ? 1 : -1;
            long lowest = LowestBit(signal);
            int shift = (int)(lowest % 8);
            ulong bits = raw & mask;
            for (long at = lowest / 8; mask != 0; at += step)
            {
                data[at] = unchecked((byte)((data[at] & ~(mask << shift)) | bits << shift));
                mask >>= 8 - shift;
                bits >>= 8 - shift;
                shift = 0;
            }
        }

        public static double RawToValue(Signal signal, ulong raw)
        {
            CheckLayout(signal);
            if (!IsFinite(signal.Factor) || !IsFinite(signal.Offset))
                throw new FrameException(signal.Name, FrameResult.BadScaling);
            double number = Number(signal, raw);
            double value = number * signal.Factor + signal.Offset;
            if (IsFinite(number) && !IsFinite(value))
                throw new FrameException(signal.Name, FrameResult.OutOfRange);
            return value;
        }

        // The raw value that is nearest to a physical value.
        public static ulong ValueToRaw(Signal signal, double value)
        {
            CheckLayout(signal);
            if (!IsFinite(signal.Factor) || !IsFinite(signal.Offset) || signal.Factor == 0)
                throw new FrameException(signal.Name, FrameResult.BadScaling);
            double number = (value - signal.Offset) / signal.Factor;
            bool single = signal.ValueType == ValueType.Float32;
            if (single || signal.ValueType == ValueType.Float64)
            {
                if (IsFinite(value) && !(Math.Abs(number) <= (single ? float.MaxValue : double.MaxValue)))
                    throw new FrameException(signal.Name, FrameResult.OutOfRange);
                return single ? BitConverter.ToUInt32(BitConverter.GetBytes((float)number), 0)
                              : unchecked((ulong)BitConverter.DoubleToInt64Bits(number));
            }
            number = Round(number);
            double half = Math.Pow(2, signal.BitLength - 1);
            bool isSigned = signal.ValueType == ValueType.Signed;
            if (!(number >= (isSigned ? -half : 0) && number < (isSigned ? half : half * 2)))
                throw new FrameException(signal.Name, FrameResult.OutOfRange);
            // The lower half of the numbers is also that of a long.
            return unchecked(number < TwoTo63 ? (ulong)(long)number : (ulong)(long)(number - TwoTo63) + (1UL << 63));
        }

        // Whether a signal is present in a frame. The selector is the multiplexer of its message.
        public static bool IsPresent(Signal signal, Signal selector, byte[] data)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            if (signal.MultiplexType != Multiplex.Selected)
                return true;
            if (selector == null || selector.MultiplexType != Multiplex.Selector)
                throw new FrameException(signal.Name, FrameResult.NoSelector);
            ulong raw = DecodeRaw(selector, data);
            if (selector.ValueType == ValueType.Float32 || selector.ValueType == ValueType.Float64)
                throw new FrameException(selector.Name, FrameResult.BadLayout);
            return (raw & Mask(selector.BitLength)) == signal.MultiplexValue;
        }

        // Whether a physical value is between minimum and maximum, which are no limits if both are 0.
        public static bool IsWithinLimits(Signal signal, double value)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            if (double.IsNaN(value))
                return false;
            if (!(Math.Abs(signal.Minimum) > 0) && !(Math.Abs(signal.Maximum) > 0))
                return true;
            return value >= signal.Minimum - Slack(signal, signal.Minimum)
                && value <= signal.Maximum + Slack(signal, signal.Maximum);
        }

        private const double TwoTo63 = 9223372036854775808.0;
        private const double FloatEpsilon = 1.1920928955078125e-7;

        private static void CheckLayout(Signal signal)
        {
            if (signal == null)
                throw new ArgumentNullException("signal");
            if (signal.BitLength < 1 || signal.BitLength > 64
                || signal.ByteOrder > ByteOrder.LittleEndian || signal.ValueType > ValueType.Float64
                || (signal.ValueType == ValueType.Float32 && signal.BitLength != 32)
                || (signal.ValueType == ValueType.Float64 && signal.BitLength != 64))
                throw new FrameException(signal.Name, FrameResult.BadLayout);
        }

        private static void CheckBounds(Signal signal, byte[] data)
        {
            if (data == null)
                throw new ArgumentNullException("data");
            long before = signal.ByteOrder == ByteOrder.LittleEndian ? signal.StartBit : signal.StartBit ^ 7;
            if (before + signal.BitLength > 8L * data.Length)
                throw new FrameException(signal.Name, FrameResult.TooShort);
        }

        // The least significant bit of a signal, as a number of the frame.
        private static long LowestBit(Signal signal)
        {
            long start = signal.StartBit;
            return signal.ByteOrder == ByteOrder.LittleEndian ? start : ((start ^ 7) + signal.BitLength - 1) ^ 7;
        }

        private static ulong Mask(uint bits) { return ulong.MaxValue >> (int)(64 - bits); }

        private static ulong ExtendSign(Signal signal, ulong bits)
        {
            ulong sign = 1UL << (int)(signal.BitLength - 1);
            return signal.ValueType == ValueType.Signed ? unchecked((bits ^ sign) - sign) : bits;
        }

        private static double Number(Signal signal, ulong raw)
        {
            switch (signal.ValueType)
            {
                case ValueType.Float32: return BitConverter.ToSingle(BitConverter.GetBytes(unchecked((uint)raw)), 0);
                case ValueType.Float64: return BitConverter.Int64BitsToDouble(unchecked((long)raw));
                case ValueType.Signed: return unchecked((long)raw);
                // In two exact halves, since old runtimes round the conversion of an ulong twice.
                default: return (raw >> 32) * 4294967296.0 + unchecked((uint)raw);
            }
        }

        // Rounds to the nearest integer, and away from zero from the middle between two.
        private static double Round(double number)
        {
            if (!(Math.Abs(number) < 4503599627370496.0))
                return number;
            double integer = (long)number;
            if (number - integer >= 0.5)
                return integer + 1;
            return integer - number >= 0.5 ? integer - 1 : integer;
        }

        // By how much encoding may move a value beyond a limit.
        private static double Slack(Signal signal, double limit)
        {
            if (signal.ValueType == ValueType.Float64)
                return 0;
            return signal.ValueType == ValueType.Float32 ? Math.Abs(limit) * FloatEpsilon : Math.Abs(signal.Factor) / 2;
        }

        private static bool IsFinite(double number) { return !double.IsNaN(number) && !double.IsInfinity(number); }
    }
}
