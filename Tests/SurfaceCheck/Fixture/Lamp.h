// A lower layer for the test of the check: what is called Unneeded… is what the check has to find.

#pragma once

class FLamp
{
public:
	virtual ~FLamp() = default;

	virtual void Shine();
	virtual void Dim() {}
	virtual void Pulse();
	virtual void Blink() {}
	virtual void UnneededFlicker();
	virtual void UnneededRepeat(FLamp* Inner) { Inner->UnneededRepeat(nullptr); }

	void Clean();
	void UnneededRepaint();
	int GetPower() const { return Power; }
	int GetPower(int Factor) const { return Power * Factor; } // unneeded: an overload
	int UnneededAge() const { return 1; }

private:
	void Wipe();
	void UnneededScratch();

	int Power = 60;
};

class FSocket
{
public:
	virtual ~FSocket() = default;

	virtual void Plug() = 0;
	virtual void UnneededUnplug() = 0;
};

template<typename T>
struct TBox
{
	TBox() = default;
	const T& Get() const { return Value; }
	void UnneededPut(const T& InValue) { Value = InValue; }
	bool operator<(const TBox& Other) const { return Value < Other.Value; }
	bool operator>(const TBox& Other) const { return Value > Other.Value; } // unneeded

	T Value{};
};

constexpr int EvaluatedAtCompileTime(int Value)
{
	return Value + 1;
}

constexpr int UnneededAtCompileTime(int Value)
{
	return Value + 2;
}

struct UReflected
{
	static void execOpen(void* Context, int Stack, void* Result);
	static void execUnneededClose(void* Context, int Stack, void* Result);
	void Open();
	void UnneededClose();
};

FLamp& GetLamp();
FSocket& GetSocket();
void Blink();
